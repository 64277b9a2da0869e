// The feedback payload built from a finished response: what is sent, under
// which keys, and what is left out.

#include <tovukit_io/network/TovuFeedbackRequest.h>
#include <tovukit_io/network/TovuFeedbackRequestJson.h>

#include <QString>
#include <QSysInfo>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cmath>
#include <limits>

using Json = nlohmann::ordered_json;

namespace {

TovuQueuedResponse response()
{
    return TovuQueuedResponse{
        .responseId = "R1",
        .surveyId = "S1",
        .collectorUUID = "C1",
        .mode = "mobile",
        .status = "completed",
        .startTime = "2026-11-21T10:00:00Z",
        .endTime = "2026-11-21T10:02:00Z",
        .answers = {{.questionId = "q1", .value = {{.rowId = "r1", .colId = "c1", .text = "Yes", .type = "choice"}}},
                    {.questionId = "thank_you_auto", .value = {{.rowId = "done"}}}},
    };
}

TovuQualityFlags flagsWithNetMinutes(double minutes)
{
    TovuQualityFlags flags;
    flags.data.survey.netTimeDuration = minutes;
    return flags;
}

Json encoded(const TovuFeedbackRequest &request)
{
    const auto text = tovuEncode(request);
    EXPECT_TRUE(text) << text.error().message;
    return Json::parse(text.value_or("{}"));
}

} // namespace

TEST(FeedbackRequest, CarriesTheResponseAndDropsTheClosingAnswer)
{
    const TovuFeedbackRequest request = makeFeedbackRequest(response(), "17.4.1");
    ASSERT_EQ(request.responses.size(), 1u);
    const TovuFeedbackResponseItem &item = request.responses.front();
    EXPECT_EQ(request.collector_id, "C1");
    EXPECT_EQ(item.response_status, "completed");
    EXPECT_EQ(item.mode, "mobile");
    EXPECT_EQ(item.start_time, "2026-11-21T10:00:00Z");
    EXPECT_EQ(item.end_time, "2026-11-21T10:02:00Z");
    EXPECT_EQ(item.userAgent,
              "Mozilla/5.0 (iPhone; CPU iPhone OS 17_4_1 like Mac OS X) AppleWebKit/605.1.15 "
              "(KHTML, like Gecko) Mobile/15E148");
    ASSERT_EQ(item.questions.size(), 1u);
    EXPECT_EQ(item.questions[0].uuid, "q1");
    ASSERT_EQ(item.questions[0].answer.size(), 1u);
    EXPECT_EQ(item.questions[0].answer[0], (TovuFeedbackAnswerValue{.row_id = "r1", .col_id = "c1", .text = "Yes"}));

    const Json json = encoded(request);
    const Json &sent = json["responses"][0];
    // The view's kind tag stays on the device.
    EXPECT_EQ(sent["questions"][0]["answer"][0], (Json{{"row_id", "r1"}, {"col_id", "c1"}, {"text", "Yes"}}));
    EXPECT_FALSE(sent.contains("time_spent"));
    EXPECT_FALSE(sent.contains("qualityFlags"));
    EXPECT_FALSE(sent.contains("custom_variables"));
    EXPECT_FALSE(sent.contains("geoLocation"));
}

TEST(FeedbackRequest, EmptyRowIdIsLeftOut)
{
    TovuQueuedResponse typed = response();
    typed.answers = {{.questionId = "q2", .value = {{.rowId = "", .text = "hello"}}}};
    const Json json = encoded(makeFeedbackRequest(typed, "17.0"));
    EXPECT_EQ(json["responses"][0]["questions"][0]["answer"][0], (Json{{"text", "hello"}}));
}

TEST(FeedbackRequest, TimeSpentIsNetMinutesInWholeSeconds)
{
    TovuQueuedResponse timed = response();
    const auto secondsFor = [&timed](double minutes) {
        timed.qualityFlags = flagsWithNetMinutes(minutes);
        return makeFeedbackRequest(timed, "17.0").responses.front().time_spent;
    };
    EXPECT_EQ(secondsFor(1.99), 119);
    EXPECT_EQ(secondsFor(0.0), 0);
    EXPECT_EQ(secondsFor(-0.51), -30); // toward zero
    // A broken clock must not take the host down: no time is sent instead.
    EXPECT_EQ(secondsFor(std::numeric_limits<double>::quiet_NaN()), std::nullopt);
    EXPECT_EQ(secondsFor(std::numeric_limits<double>::infinity()), std::nullopt);
    EXPECT_EQ(secondsFor(1e300), std::nullopt);
}

TEST(FeedbackRequest, EncodesUnderTheApiKeysInOrder)
{
    TovuQueuedResponse full = response();
    full.customVariables = std::map<std::string, std::string>{{"plan", "pro"}};
    full.qualityFlags = flagsWithNetMinutes(2);
    full.deviceInfo = TovuDeviceInfo{.type = "mobile", .os = "iOS", .browser = "app"};
    full.geolocation = TovuGeolocation{.type = "Point", .coordinates = {std::nullopt, 2.5}};
    const Json json = encoded(makeFeedbackRequest(full, "17.0"));

    std::vector<std::string> keys;
    for (const auto &[key, value] : json["responses"][0].items())
        keys.push_back(key);
    EXPECT_EQ(keys,
              (std::vector<std::string>{"response_status", "mode", "userAgent", "start_time", "end_time", "time_spent",
                                        "custom_variables", "qualityFlags", "deviceInfo", "geoLocation", "questions"}));
    EXPECT_EQ(json["responses"][0]["time_spent"], 120);
    EXPECT_EQ(json["responses"][0]["geoLocation"]["coordinates"], Json::parse("[null, 2.5]"));
    EXPECT_EQ(json["responses"][0]["qualityFlags"]["data"]["survey"]["netTimeDuration"], 2.0);
    EXPECT_EQ(*json.begin(), "C1"); // collector_id first
}

TEST(FeedbackRequest, UserAgentUsesThisDevicesVersion)
{
    const std::string version = QSysInfo::productVersion().toStdString();
    EXPECT_EQ(makeFeedbackRequest(response()), makeFeedbackRequest(response(), version));
}
