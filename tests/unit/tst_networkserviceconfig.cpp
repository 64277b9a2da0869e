// The backend client's configuration: base URLs by zone and environment,
// the token's life, server messages and failures found before any request.

#include <tovukit_io/model/TovuLog.h>
#include <tovukit_io/network/TovuNetworkService.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

struct LogCapture {
    LogCapture()
    {
        TovuLog::setHandler([this](std::string_view line) { lines.emplace_back(line); });
    }
    ~LogCapture() { TovuLog::setHandler({}); }
    std::vector<std::string> lines;
};

} // namespace

TEST(NetworkServiceConfig, BaseUrlsFollowZoneAndEnvironment)
{
    TovuNetworkService service;
    EXPECT_EQ(service.apiBaseURL(), "https://api.tovu.example");
    EXPECT_EQ(service.feedbackBaseURL(), "https://feedback-api.tovu.example");

    service.configure("key", "eu", TovuEnvironment::production);
    EXPECT_EQ(service.apiBaseURL(), "https://eu-api.tovu.example");
    EXPECT_EQ(service.feedbackBaseURL(), "https://eu-feedback-api.tovu.example");

    service.configure("key", "eu", TovuEnvironment::uat);
    EXPECT_EQ(service.apiBaseURL(), "https://uat-eu-api.tovu.example");
    EXPECT_EQ(service.feedbackBaseURL(), "https://uat-eu-feedback-api.tovu.example");

    service.setServiceDomain("surveys.example.org");
    EXPECT_EQ(service.apiBaseURL(), "https://uat-eu-api.surveys.example.org");

    service.setBaseURLOverride("http://127.0.0.1:8787");
    EXPECT_EQ(service.apiBaseURL(), "http://127.0.0.1:8787");
    EXPECT_EQ(service.feedbackBaseURL(), "http://127.0.0.1:8787");
    service.setBaseURLOverride(std::nullopt);
    EXPECT_EQ(service.feedbackBaseURL(), "https://uat-eu-feedback-api.surveys.example.org");
}

TEST(NetworkServiceConfig, ConfigureStoresTheAccountAndClearsTheToken)
{
    TovuNetworkService service;
    service.setBearerToken("t1");
    EXPECT_EQ(service.bearerToken(), "t1");
    service.configure("key", "us", TovuEnvironment::uat);
    EXPECT_EQ(service.apiKey(), "key");
    EXPECT_EQ(service.zone(), "us");
    EXPECT_EQ(service.environment(), TovuEnvironment::uat);
    EXPECT_EQ(service.bearerToken(), std::nullopt);
    EXPECT_EQ(rawValue(TovuEnvironment::uat), "uat");
    EXPECT_EQ(fromRawValue<TovuEnvironment>("production"), TovuEnvironment::production);
    EXPECT_EQ(fromRawValue<TovuEnvironment>("UAT"), std::nullopt);
}

TEST(NetworkServiceConfig, ServerMessageFromTheBody)
{
    EXPECT_EQ(TovuNetworkService::extractServerMessage(R"({"message": "Invalid key"})"), "Invalid key");
    EXPECT_EQ(TovuNetworkService::extractServerMessage(R"({"data": {"errors": {"detail": "missing"}}})"), "missing");
    EXPECT_EQ(TovuNetworkService::extractServerMessage(R"({"message": 5, "data": {"errors": {"detail": "d"}}})"), "d");
    EXPECT_EQ(TovuNetworkService::extractServerMessage(R"({"data": {"errors": {"detail": 1}}})"), std::nullopt);
    EXPECT_EQ(TovuNetworkService::extractServerMessage(R"(["message"])"), std::nullopt);
    EXPECT_EQ(TovuNetworkService::extractServerMessage("<html>502</html>"), std::nullopt);
    EXPECT_EQ(TovuNetworkService::extractServerMessage(""), std::nullopt);

    const TovuError error = TovuNetworkService::makeServiceError("boom");
    EXPECT_EQ(error, (TovuError{"TovuNetworkService", 0, "boom"}));
}

// These fail before any request is made, and say so at once.
TEST(NetworkServiceConfig, FailuresBeforeAnyRequest)
{
    LogCapture log;
    TovuNetworkService service;
    std::vector<std::string> messages;
    const auto keep = [&messages](const auto &result) {
        ASSERT_FALSE(result);
        messages.push_back(result.error().localizedDescription());
    };

    service.verifyApiKey(keep);
    service.fetchSurvey("S1", keep);
    service.configure("key", "e u", TovuEnvironment::production);
    service.verifyApiKey(keep);
    service.fetchCollector("C1", keep);
    service.setBearerToken("t");
    service.fetchSurvey("S1", keep);
    service.submitResponse("S1", {}, keep);
    service.fetchLowestResponseSurveyId({"a"}, keep);

    EXPECT_EQ(messages,
              (std::vector<std::string>{
                  "API Key or Zone missing. Call configure() first.",
                  "Bearer token missing. verifyApiKey() must succeed first.",
                  "Invalid verify URL: https://api.tovu.example/api/v1/api-key/verify?zone=e u",
                  "Invalid collector URL: https://e u-api.tovu.example/v3/collectors/collect/C1",
                  "Invalid survey URL: https://e u-api.tovu.example/v3/survey-management/surveys/S1",
                  "Invalid Feedback API URL: https://e "
                  "u-feedback-api.tovu.example/v3/survey-participation/S1/response/create-response",
                  "Invalid URL: https://e u-api.tovu.example/v3/survey-management/surveys/responses/"
                  "response-count",
              }));
    EXPECT_TRUE(log.lines.empty());
}
