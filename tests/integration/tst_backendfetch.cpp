// Key verification, collector resolution and survey download against the
// local backend: every answer shape and failure message, and the console blocks.

#include "TovuBackendFixture.h"
#include "TovuTestFiles.h"

using FetchCalls = TovuBackendFixture;

TEST_F(FetchCalls, VerifyFindsTheTokenWhereverTheBackendPutsIt)
{
    const auto demo = verify();
    ASSERT_TRUE(demo) << demo.error().message;
    EXPECT_EQ(*demo, "tovu-demo-token");
    EXPECT_EQ(service.bearerToken(), "tovu-demo-token");

    const std::vector<std::pair<std::string, std::string>> bodies{
        {R"({"access_token": "a", "token": "t"})", "a"},
        {R"({"token": "t", "data": {"token": "d"}})", "t"},
        {R"({"data": {"token": "d", "access_token": "x"}, "bearerToken": "b"})", "d"},
        {R"({"bearerToken": "b", "data": {"access_token": "x"}})", "b"},
        {R"({"data": {"access_token": "x"}})", "x"},
        {R"({"access_token": 5, "token": "u"})", "u"}, // only text counts
    };
    for (const auto &[body, token] : bodies) {
        SCOPED_TRACE(body);
        answerNext("/api/v1/api-key/verify", 200, body);
        const auto result = verify();
        ASSERT_TRUE(result) << result.error().message;
        EXPECT_EQ(*result, token);
        EXPECT_EQ(service.bearerToken(), token);
    }
}

TEST_F(FetchCalls, VerifyFailuresKeepTheTokenAndSayWhy)
{
    service.setBearerToken("kept");
    const std::vector<std::tuple<int, std::string, std::string>> answers{
        {401, R"({"message": "Invalid key"})", "Invalid key"},
        {500, "", "HTTP 500"},
        {404, R"({"data": {"errors": {"detail": "missing"}}})", "missing"},
        {502, "<html>Bad gateway</html>", "HTTP 502"},
        // Qt files these two under its transport errors; the status still decides.
        {407, "", "HTTP 407"},
        {401, "", "HTTP 401"},
        {200, "<html>not json</html>", "Invalid verify response format"},
        {200, "[\"token\"]", "Invalid verify response format"},
        {200, R"({"ok": true, "data": {"id": 1}})", "Bearer token not found in verify response"},
    };
    for (const auto &[status, body, message] : answers) {
        SCOPED_TRACE(body);
        answerNext("/api/v1/api-key/verify", status, body);
        const auto result = verify();
        ASSERT_FALSE(result);
        EXPECT_EQ(result.error(), TovuNetworkService::makeServiceError(message));
        EXPECT_EQ(service.bearerToken(), "kept");
    }
    EXPECT_EQ(log[log.size() - 1], "    ❌ Bearer token not found — keys: ok, data");

    // The real backend refuses an unknown key.
    service.configure("not-a-key", "eu", TovuEnvironment::production);
    EXPECT_EQ(verify().error().message, "Invalid API key");
}

TEST_F(FetchCalls, VerifyConsoleBlock)
{
    answerNext("/api/v1/api-key/verify", 200, R"({"data":{"token":"tk"}})");
    ASSERT_TRUE(verify());
    EXPECT_EQ(log,
              (std::vector<std::string>{
                  separator(),
                  ">>> Tovu SDK [Step 0] Verifying API key",
                  "    URL  : " + url + "/api/v1/api-key/verify?zone=eu",
                  "    Status   : 200",
                  R"(    Response : {"data":{"token":"tk"}})",
                  "    ✅ Bearer token obtained",
                  separator(),
              }));

    log.clear();
    answerNext("/api/v1/api-key/verify", 403, R"({"message":"Key revoked"})");
    ASSERT_FALSE(verify());
    EXPECT_EQ(std::vector(log.begin() + 3, log.end()),
              (std::vector<std::string>{
                  "    Status   : 403",
                  R"(    Response : {"message":"Key revoked"})",
                  "    ❌ Verify failed: Key revoked",
              }));
}

TEST_F(FetchCalls, CollectorResolvesInEveryShape)
{
    const auto sample = collector("collector-customer-satisfaction");
    ASSERT_TRUE(sample) << sample.error().message;
    EXPECT_EQ(sample->surveyId, "03ce355f-163d-420a-9980-f630e7af337c");
    EXPECT_EQ(sample->uuid, "collector-customer-satisfaction");
    EXPECT_FALSE(sample->mongoId.empty());

    const std::vector<std::pair<std::string, CollectorInfo>> bodies{
        {R"({"surveyId": "S1", "uuid": "U1", "_id": "M1"})", {"S1", "U1", "M1"}},
        {R"({"data": {"surveyId": "S1", "uuid": "U1", "_id": "M1"}})", {"S1", "U1", "M1"}},
        {R"({"data": {"survey_id": "S2"}})", {"S2", "", ""}},
        {R"({"data": {"surveyId": 7, "survey_id": "S4", "uuid": 1}})", {"S4", "", ""}},
        {R"({"data": "x", "surveyId": "S3"})", {"S3", "", ""}},
    };
    for (const auto &[body, info] : bodies) {
        SCOPED_TRACE(body);
        answerNext("/v3/collectors/collect/", 200, body);
        const auto result = collector("C1");
        ASSERT_TRUE(result) << result.error().message;
        EXPECT_EQ(*result, info);
    }
}

TEST_F(FetchCalls, CollectorFailures)
{
    EXPECT_EQ(collector("no-such-collector").error().message, "Collector not found");

    answerNext("/v3/collectors/collect/", 200, R"({"data": {"nick": "Spring", "uuid": "U"}})");
    EXPECT_EQ(collector("C1").error().message, "surveyId not found in collector response");
    EXPECT_EQ(log[log.size() - 1], "    ❌ surveyId not found — keys: nick, uuid");

    answerNext("/v3/collectors/collect/", 200, "surveyId=S1");
    EXPECT_EQ(collector("C1").error().message, "Invalid collector response format");
    EXPECT_EQ(log[log.size() - 1], "    ❌ Invalid collector response format");

    answerNext("/v3/collectors/collect/", 503, "");
    EXPECT_EQ(collector("C1").error().message, "HTTP 503");
    EXPECT_EQ(log[log.size() - 1], "    ❌ Collector fetch failed: HTTP 503");
}

TEST_F(FetchCalls, CollectorConsoleBlock)
{
    answerNext("/v3/collectors/collect/", 200, R"({"data":{"surveyId":"S1","uuid":"U1","_id":"M1","nick":"Spring"}})");
    ASSERT_TRUE(collector("C1"));
    EXPECT_EQ(log,
              (std::vector<std::string>{
                  separator(),
                  ">>> Tovu SDK [Step 1/3] Fetch Collector",
                  "    URL         : " + url + "/v3/collectors/collect/C1",
                  "    collectorId : C1",
                  "    Status  : 200",
                  R"(    Response: {"data":{"surveyId":"S1","uuid":"U1","_id":"M1","nick":"Spring"}})",
                  "    Nick     : Spring",
                  "    mongoId  : M1",
                  "    uuid     : U1",
                  "    ✅ surveyId: S1",
              }));
}

TEST_F(FetchCalls, SurveyDownloadsAndConverts)
{
    ASSERT_TRUE(verify());
    log.clear();
    const std::string id = "03ce355f-163d-420a-9980-f630e7af337c";
    const auto result = survey(id);
    ASSERT_TRUE(result) << result.error().message;
    EXPECT_EQ(result->name, "Post-purchase satisfaction survey");
    ASSERT_FALSE(result->questions.empty());
    EXPECT_EQ(result->questions.back().id, "thank_you_auto");

    const std::string document = TovuTestFiles::readFile(TovuTestFiles::samplesDir() / "customer-satisfaction.json");
    EXPECT_EQ(log,
              (std::vector<std::string>{
                  separator(),
                  ">>> Tovu SDK [Step 2/3] Fetch Survey",
                  "    URL      : " + url + "/v3/survey-management/surveys/" + id,
                  "    surveyId : " + id,
                  "    Status  : 200",
                  "    Response: " + document,
                  "    ✅ Survey loaded: Post-purchase satisfaction survey",
                  separator(),
              }));
}

TEST_F(FetchCalls, SurveyFailures)
{
    // No token yet: nothing is sent.
    EXPECT_EQ(survey("S1").error().message, "Bearer token missing. verifyApiKey() must succeed first.");
    EXPECT_TRUE(log.empty());

    ASSERT_TRUE(verify());
    EXPECT_EQ(survey("no-such-survey").error().message, "Survey not found");

    answerNext("/v3/survey-management/surveys/", 200, R"({"data": {"uuid": 1, "displayTitle": "x", "blocks": []}})");
    const auto undecodable = survey("S1");
    ASSERT_FALSE(undecodable);
    EXPECT_EQ(undecodable.error().domain, "TovuCoding");
    EXPECT_EQ(undecodable.error().message, "data.uuid: expected string, found integer");
    EXPECT_EQ(log[log.size() - 1], "    ❌ Decoding error: data.uuid: expected string, found integer");

    answerNext("/v3/survey-management/surveys/", 200, "");
    EXPECT_EQ(survey("S1").error().domain, "TovuCoding");

    service.setBearerToken("forged");
    EXPECT_EQ(survey("03ce355f-163d-420a-9980-f630e7af337c").error().message, "Unauthorized");

    // A new configuration needs a new verify.
    ASSERT_TRUE(verify());
    service.configure("tovu-demo-key", "eu", TovuEnvironment::uat);
    EXPECT_EQ(survey("S1").error().message, "Bearer token missing. verifyApiKey() must succeed first.");
}
