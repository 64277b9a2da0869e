// Response submission and lowest-response selection against the local
// backend: payloads as stored, answer shapes, failures, console blocks.

#include "TovuBackendFixture.h"

#include <tovukit_io/network/TovuFeedbackRequestJson.h>

namespace {

TovuQueuedResponse finishedResponse(const std::string &surveyId)
{
    TovuQualityFlags flags;
    flags.data.survey.netTimeDuration = 1.5;
    flags.data.timePerQues["q1"] = {.timeOnQues = 12.5};
    return TovuQueuedResponse{
        .responseId = "R1",
        .surveyId = surveyId,
        .collectorUUID = "collector-customer-satisfaction",
        .mode = "mobile",
        .status = "completed",
        .startTime = "2026-11-21T10:00:00Z",
        .endTime = "2026-11-21T10:01:30Z",
        .answers = {{.questionId = "q1", .value = {{.rowId = "r1"}}},
                    {.questionId = "q2", .value = {{.rowId = "", .text = "Fast delivery"}}},
                    {.questionId = "thank_you_auto", .value = {{.rowId = "done"}}}},
        .qualityFlags = flags,
    };
}

} // namespace

class SubmitCalls : public TovuBackendFixture
{
protected:
    void SetUp() override
    {
        TovuBackendFixture::SetUp();
        ASSERT_TRUE(verify());
        log.clear();
    }

    TovuResult<void> submit(const std::string &surveyId, TovuFeedbackRequest request)
    {
        return await<void>([&](auto done) { service.submitResponse(surveyId, std::move(request), std::move(done)); });
    }

    TovuResult<std::string> lowest(std::vector<std::string> ids)
    {
        return await<std::string>(
            [&](auto done) { service.fetchLowestResponseSurveyId(std::move(ids), std::move(done)); });
    }
};

TEST_F(SubmitCalls, StoresThePayloadAsSent)
{
    const TovuFeedbackRequest request = makeFeedbackRequest(finishedResponse("S1"), "17.4");
    const auto result = submit("S1", request);
    ASSERT_TRUE(result) << result.error().message;

    const Json stored = storedResponses();
    ASSERT_EQ(stored.size(), 1u);
    EXPECT_EQ(stored[0]["surveyId"], "S1");
    EXPECT_EQ(stored[0]["payload"], Json(request));
    EXPECT_EQ(stored[0]["payload"]["responses"][0]["questions"].size(), 2u); // no closing answer
    EXPECT_EQ(stored[0]["payload"]["responses"][0]["time_spent"], 90);
}

TEST_F(SubmitCalls, SubmitConsoleBlock)
{
    const TovuFeedbackRequest request = makeFeedbackRequest(finishedResponse("S1"), "17.4");
    answerNext("/v3/survey-participation/", 201, "");
    ASSERT_TRUE(submit("S1", request)); // an empty 2xx answer is a success
    EXPECT_EQ(log,
              (std::vector<std::string>{
                  separator(),
                  ">>> Tovu SDK [Step 3/3] Submit Response (Feedback API)",
                  "    URL          : " + url + "/v3/survey-participation/S1/response/create-response",
                  "    surveyId     : S1",
                  "    collector_id : collector-customer-satisfaction",
                  "    status       : completed",
                  "    questions    : 2",
                  "    Payload      : " + tovuEncode(request).value(),
                  "    Status       : 201",
                  "    Response     : ",
                  "    ✅ Response submitted successfully",
                  separator(),
              }));
    EXPECT_TRUE(storedResponses().empty());
}

TEST_F(SubmitCalls, SubmitFailures)
{
    answerNext("/v3/survey-participation/", 400, R"({"message": "bad"})");
    EXPECT_EQ(submit("S1", makeFeedbackRequest(finishedResponse("S1"), "17.4")).error().message, "bad");
    EXPECT_EQ(log[log.size() - 1], "    ❌ Submit failed: bad");

    answerNext("/v3/survey-participation/", 500, "");
    EXPECT_EQ(submit("S1", makeFeedbackRequest(finishedResponse("S1"), "17.4")).error().message, "HTTP 500");

    // The backend checks the payload's shape itself.
    const auto empty = submit("S1", TovuFeedbackRequest{.collector_id = "C1"});
    ASSERT_FALSE(empty);
    EXPECT_FALSE(empty.error().message.empty());
    EXPECT_EQ(log[log.size() - 1], "    ❌ Submit failed: " + empty.error().message);

    service.setBearerToken("forged");
    EXPECT_EQ(submit("S1", makeFeedbackRequest(finishedResponse("S1"), "17.4")).error().message, "Unauthorized");
    EXPECT_TRUE(storedResponses().empty());
}

TEST_F(SubmitCalls, LowestPicksTheSurveyWithFewestResponses)
{
    for (const std::string id : {"A", "A", "B"})
        ASSERT_TRUE(submit(id, makeFeedbackRequest(finishedResponse(id), "17.4")));
    EXPECT_EQ(lowest({"A", "B", "C"}).value_or("failed"), "C");
    EXPECT_EQ(lowest({"A", "B"}).value_or("failed"), "B");
    ASSERT_TRUE(submit("C", makeFeedbackRequest(finishedResponse("C"), "17.4")));
    EXPECT_EQ(lowest({"C", "B"}).value_or("failed"), "C"); // a tie goes to the first
}

TEST_F(SubmitCalls, LowestAnswerShapes)
{
    const std::vector<std::pair<std::string, std::string>> found{
        {R"({"success": true, "data": {"surveyUUID": "U", "surveyId": "S"}})", "U"},
        {R"({"data": {"surveyId": "S"}})", "S"},
        {R"({"data": {"surveyId": "S", "extra": [1]}, "more": {}})", "S"},
    };
    for (const auto &[body, id] : found) {
        SCOPED_TRACE(body);
        answerNext("/v3/survey-management/surveys/responses", 200, body);
        EXPECT_EQ(lowest({"U", "S"}).value_or("failed"), id);
    }
}

TEST_F(SubmitCalls, LowestFailures)
{
    const std::vector<std::tuple<int, std::string, std::string>> failures{
        {200, R"({"success": false, "message": "x"})", "surveyUUID not found in response"},
        {200, R"({"data": {}})", "surveyUUID not found in response"},
        {404, R"({"data": {"errors": {"detail": "missing"}}})", "missing"},
        {500, "", "HTTP 500"},
    };
    for (const auto &[status, body, message] : failures) {
        SCOPED_TRACE(body);
        answerNext("/v3/survey-management/surveys/responses", status, body);
        EXPECT_EQ(lowest({"A"}).error(), TovuNetworkService::makeServiceError(message));
    }

    answerNext("/v3/survey-management/surveys/responses", 200, R"({"data": {"surveyUUID": 42}})");
    const auto wrongKind = lowest({"A"});
    ASSERT_FALSE(wrongKind);
    EXPECT_EQ(wrongKind.error().domain, "TovuCoding");
    EXPECT_EQ(wrongKind.error().message, "data.surveyUUID: expected string, found integer");
    EXPECT_EQ(log[log.size() - 1], "    ❌ Decode error: data.surveyUUID: expected string, found integer");

    // "success" and "message" are not consulted, but they must still be of their kinds.
    answerNext("/v3/survey-management/surveys/responses", 200, R"({"success": "yes", "data": {"surveyId": "S"}})");
    EXPECT_EQ(lowest({"A"}).error().message, "success: expected boolean, found string");

    answerNext("/v3/survey-management/surveys/responses", 200, "OK");
    EXPECT_EQ(lowest({"A"}).error().domain, "TovuCoding");
}

TEST_F(SubmitCalls, LowestConsoleBlock)
{
    answerNext("/v3/survey-management/surveys/responses", 200, R"({"data":{"surveyUUID":"B"}})");
    ASSERT_TRUE(lowest({"A", "B"}));
    EXPECT_EQ(
        log,
        (std::vector<std::string>{
            separator(),
            ">>> Tovu SDK [Lowest Response] URL: " + url + "/v3/survey-management/surveys/responses/response-count",
            R"(    surveyUUIDs: ["A", "B"])",
            "    Status  : 200",
            R"(    Response: {"data":{"surveyUUID":"B"}})",
            "    ✅ Lowest response surveyId: B",
            separator(),
        }));
}
