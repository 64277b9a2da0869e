#include "TovuDemoStoredResponses.h"

#include <nlohmann/json.hpp>

namespace {

QString text(const nlohmann::ordered_json &object, const char *key)
{
    const auto found = object.find(key);
    return found != object.end() && found->is_string() ? QString::fromStdString(found->get<std::string>()) : QString();
}

} // namespace

std::optional<TovuDemoStoredResponses> TovuDemoStoredResponses::parse(const QByteArray &body)
{
    const auto list = nlohmann::ordered_json::parse(body.constData(), body.constData() + body.size(), nullptr, false);
    if (!list.is_array())
        return std::nullopt;
    TovuDemoStoredResponses result;
    for (const auto &stored : list) {
        if (!stored.is_object())
            return std::nullopt;
        Entry entry;
        if (const auto id = stored.find("id"); id != stored.end() && id->is_number_integer())
            entry.id = id->get<int>();
        entry.surveyId = text(stored, "surveyId");
        entry.receivedAt = text(stored, "receivedAt");
        const auto payload = stored.find("payload");
        if (payload != stored.end() && payload->is_object()) {
            const auto responses = payload->find("responses");
            if (responses != payload->end() && responses->is_array() && !responses->empty()
                && responses->front().is_object()) {
                const auto &first = responses->front();
                entry.status = text(first, "response_status");
                const auto questions = first.find("questions");
                if (questions != first.end() && questions->is_array())
                    entry.answeredQuestions = static_cast<int>(questions->size());
            }
        }
        // Keys keep the order the backend stored them in; text stays UTF-8, not \u escapes.
        entry.prettyJson = QString::fromStdString(stored.dump(2));
        result.m_entries.push_back(std::move(entry));
    }
    return result;
}

const TovuDemoStoredResponses::Entry *TovuDemoStoredResponses::newestFor(const QString &surveyId) const
{
    for (auto it = m_entries.rbegin(); it != m_entries.rend(); ++it) {
        if (it->surveyId == surveyId)
            return &*it;
    }
    return nullptr;
}

QString TovuDemoStoredResponses::Entry::summary(const QString &title) const
{
    return QStringLiteral("#%1  %2  %3 · %4 answers")
        .arg(id)
        .arg(receivedAt.mid(11, 8), title.isEmpty() ? surveyId : title)
        .arg(answeredQuestions);
}

QString TovuDemoStoredResponses::Entry::details() const
{
    return QStringLiteral("Survey %1, response status \"%2\"").arg(surveyId, status);
}
