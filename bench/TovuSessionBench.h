#pragma once

// What the session benchmarks share: the sample surveys shipped with the library,
// and finished responses assembled from one of them, as the offline queue holds them.

#include <TovuTestFiles.h>

#include <tovukit_io/core/TovuResponseAssembly.h>
#include <tovukit_io/network/TovuAPISurveyDataJson.h>
#include <tovukit_io/platform/TovuClock.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QFile>
#include <QTimer>

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <unistd.h>

namespace TovuSessionBench {

// A sample from samples/surveys, decoded and converted as a fetched survey is;
// empty when the file is missing or no longer decodes.
inline TovuSurvey sampleSurvey(std::string_view name)
{
    QFile file(TovuTestFiles::samplesDir() / (std::string(name) + ".json"));
    const QByteArray text = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    const auto document
        = tovuDecode<TovuAPIMainResponse>(std::string_view(text.constData(), static_cast<std::size_t>(text.size())));
    return document ? document->data.toNativeSurvey() : TovuSurvey{};
}

// What a respondent might have given: the first row, the last column, a sentence to type.
inline TovuAnswer sampleAnswer(const TovuQuestion &question)
{
    TovuAnswerValue value{.rowId = question.id};
    if (question.options && !question.options->empty())
        value.rowId = question.options->front().id;
    if (question.columns && !question.columns->empty())
        value.colId = question.columns->back().id;
    if (question.type == TovuQuestionType::singleTextBox || question.type == TovuQuestionType::multipleTextBox)
        value.text = "Quick delivery and a friendly driver, thanks!";
    return {question.id, {value}};
}

// `count` complete responses to the customer-satisfaction sample, each with every
// question answered, the respondent's data and quality flags, as a session ends with.
inline std::vector<TovuQueuedResponse> sampleResponses(std::size_t count)
{
    const TovuSurvey survey = sampleSurvey("customer-satisfaction");
    TovuSessionRecord session{.surveyId = survey.id,
                              .collectorUUID = "collector-customer-satisfaction",
                              .userData = TovuUserData{.name = "Ana",
                                                       .email = "ana@example.com",
                                                       .city = "Berlin",
                                                       .eData = std::map<std::string, std::string>{{"plan", "pro"}}},
                              .startTime = "2026-11-21T10:00:00Z",
                              .startEpoch = 1'795'255'200'000};
    for (const TovuQuestion &question : survey.questions) {
        if (question.type == TovuQuestionType::thankYou)
            continue;
        session.answers.push_back(sampleAnswer(question));
        session.timePerQues[question.id] = 2.5;
    }
    std::vector<TovuQueuedResponse> responses;
    responses.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
        responses.push_back(TovuResponseAssembly::assemble(session, "complete", *TovuClock::system(),
                                                           "R-" + std::to_string(100'000 + i)));
    return responses;
}

// Runs the event loop until `done` (at most `timeoutMs`), deleting what was let go
// of on the way as a running loop would. Returns whether `done` came true.
inline bool spinUntil(const std::function<bool()> &done, int timeoutMs = 30000)
{
    const QDeadlineTimer deadline(timeoutMs);
    QTimer wake; // so a wait for more events never outlasts the deadline
    wake.start(1);
    while (!done()) {
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return true;
}

// Runs the event loop for `ms` milliseconds, as an idle application would.
inline void idleFor(int ms)
{
    QElapsedTimer idle;
    idle.start();
    spinUntil([&idle, ms] { return idle.elapsed() > ms; });
}

// Resident set of a process (this one by default), in MiB, from /proc/<pid>/statm.
inline double residentMiB(const QString &pid = QStringLiteral("self"))
{
    QFile statm(QStringLiteral("/proc/%1/statm").arg(pid));
    if (!statm.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> fields = statm.readAll().split(' ');
    const double pages = fields.size() > 1 ? fields[1].toDouble() : 0;
    return pages * static_cast<double>(sysconf(_SC_PAGESIZE)) / (1 << 20);
}

} // namespace TovuSessionBench
