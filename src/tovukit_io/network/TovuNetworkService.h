#pragma once

#include <tovukit_io/model/TovuError.h>
#include <tovukit_io/model/TovuSurvey.h>
#include <tovukit_io/network/CollectorInfo.h>
#include <tovukit_io/network/TovuEnvironment.h>
#include <tovukit_io/network/TovuFeedbackRequest.h>

#include <QObject>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class TovuNetworkServicePrivate;

/// The library's backend client: account configuration, base URLs, key
/// verification and the bearer token, collector resolution, survey download,
/// response submission and lowest-response selection.
///
/// Every call hands one result to its completion, on the thread the service
/// lives in (the GUI thread). A call that sends a request completes after it
/// has returned; one that fails before sending anything (no key or zone, no
/// bearer token, an invalid URL) completes inside the call, so callers must
/// not rely on either order. A completion is never called once the service
/// is gone. Each call prints
/// its progress as a console block through TovuLog.
///
/// \code
/// auto &service = TovuNetworkService::shared();
/// service.configure("my-api-key", "eu", TovuEnvironment::production);
/// service.verifyApiKey([](TovuResult<std::string> token) {
///     if (!token)
///         qWarning() << token.error().localizedDescription();
/// });
/// \endcode
///
/// Hosts running the local backend point every call at it with
/// setBaseURLOverride("http://127.0.0.1:8787").
class TovuNetworkService : public QObject
{
    Q_OBJECT

public:
    /// The process-wide instance; it lives until the process ends.
    static TovuNetworkService &shared();

    /// A service of its own, for tests and for hosts that talk to two accounts.
    explicit TovuNetworkService(QObject *parent = nullptr);
    ~TovuNetworkService() override;

    /// Stores the account and clears the bearer token: a new configuration needs a new verify.
    void configure(std::string apiKey, std::string zone, TovuEnvironment environment);
    void setBearerToken(std::string token);

    std::optional<std::string> apiKey() const;
    std::optional<std::string> zone() const;
    TovuEnvironment environment() const;
    std::optional<std::string> bearerToken() const;

    /// Base of the survey-management, collector and response-count calls.
    std::string apiBaseURL() const;
    /// Base of the response submission.
    std::string feedbackBaseURL() const;

    /// Step 0: verifies the API key and keeps the bearer token it returns.
    void verifyApiKey(std::function<void(TovuResult<std::string>)> completion);
    /// Step 1: the survey a collector serves.
    void fetchCollector(std::string collectorId, std::function<void(TovuResult<CollectorInfo>)> completion);
    /// Step 2: downloads and converts a survey; needs the bearer token.
    void fetchSurvey(std::string surveyId, std::function<void(TovuResult<TovuSurvey>)> completion);
    /// Step 3: posts one response.
    void submitResponse(std::string surveyId, TovuFeedbackRequest request,
                        std::function<void(TovuResult<void>)> completion);
    /// The survey among `surveyIds` with the fewest responses so far.
    void fetchLowestResponseSurveyId(std::vector<std::string> surveyIds,
                                     std::function<void(TovuResult<std::string>)> completion);

    /// An error of this service: domain "TovuNetworkService", code 0.
    static TovuError makeServiceError(std::string message);
    /// The "message", else "data"."errors"."detail", of a JSON error body.
    static std::optional<std::string> extractServerMessage(std::string_view body);

    /// Where the backend lives: hosts are "api.", "feedback-api.", zone + "-api." … + domain.
    void setServiceDomain(std::string domain); // default "tovu.example"
    std::string serviceDomain() const;
    /// Sends every call to one origin instead, such as "http://127.0.0.1:8787";
    /// std::nullopt goes back to the hosts of the service domain.
    void setBaseURLOverride(std::optional<std::string> origin);
    std::optional<std::string> baseURLOverride() const;

    /// How long a request may go without progress before it fails; 60 s unless
    /// a test shortens it.
    void setTransferTimeout(std::chrono::milliseconds timeout);
    std::chrono::milliseconds transferTimeout() const;

private:
    std::unique_ptr<TovuNetworkServicePrivate> d;
};
