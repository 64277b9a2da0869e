#pragma once

// Internal: the web survey's own response-count call. It asks the backend
// which of several surveys has the fewest responses and answers with that
// survey's page address. It always goes to the UAT API host (or to the
// backend client's base URL override), whatever environment the native path
// is configured for.

#include <tovukit_io/model/TovuError.h>

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class QObject;
class TovuNetworkService;

class TovuLowestResponseRequest
{
public:
    static constexpr const char *errorDomain = "TovuSurveyView";
    static constexpr const char *path = "/v3/survey-management/surveys/responses/response-count";

    /// "https://uat-api." + the service domain + path, or the override + path.
    static std::string endpoint(const TovuNetworkService &service);
    /// The headers beside "Content-Type": "x-api-key" only for a key that is not empty.
    static std::vector<std::pair<QByteArray, QByteArray>> headers(const std::optional<std::string> &apiKey);

    /// Sends the call with the shared backend client's transport (its time-out
    /// and override); `completion` gets the survey's address or the error, on
    /// the GUI thread.
    static void fetchSurveyURL(std::vector<std::string> surveyUUIDs, std::optional<std::string> apiKey,
                               std::function<void(TovuResult<std::string>)> completion);

    /// Fetches the address and hands it to `show` on a later turn of the event
    /// loop, while `context` still exists; a failure is printed instead.
    static void fetchAndShow(std::vector<std::string> surveyUUIDs, std::optional<std::string> apiKey, QObject *context,
                             std::function<void(const QString &surveyURL)> show);

    /// An error of this call: domain "TovuSurveyView", code -1.
    static TovuError makeError(std::string message);

    TovuLowestResponseRequest() = delete;
};
