#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

/// The responses tovu-devserver has stored, read from its GET /dev/responses
/// answer, for listing and for printing.
class TovuDemoStoredResponses
{
public:
    struct Entry {
        int id = 0;
        QString surveyId;
        QString receivedAt;
        int answeredQuestions = 0;
        QString status; ///< the response's response_status
        /// The stored entry as the backend has it, indented, keys in their order.
        QString prettyJson;

        /// One line for a list: "#2  18:40:12  Onboarding · 4 answers" (`title`, else the survey id).
        QString summary(const QString &title) const;
        /// The survey's id and the response's status.
        QString details() const;
    };

    /// Nothing when `body` is not the backend's list.
    static std::optional<TovuDemoStoredResponses> parse(const QByteArray &body);

    /// Oldest first.
    const std::vector<Entry> &entries() const { return m_entries; }
    /// The newest response to `surveyId`, if any.
    const Entry *newestFor(const QString &surveyId) const;

private:
    std::vector<Entry> m_entries;
};
