// JSON coding of the response records in the form the offline queue stores.

#include "TovuCodingAssertions.h"

#include <tovukit_io/model/TovuQueuedResponse.h>
#include <tovukit_io/model/TovuQueuedResponseJson.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

using namespace TovuCodingAssertions;

namespace {

using Keys = std::vector<std::string>;

TovuQueuedResponse minimalResponse(std::string id = "r-1")
{
    return TovuQueuedResponse{
        .responseId = std::move(id),
        .surveyId = "s-1",
        .collectorUUID = "c-1",
        .mode = "native",
        .status = "completed",
        .startTime = "2024-05-01T10:00:00Z",
        .endTime = "2024-05-01T10:03:07Z",
        .answers = {TovuAnswer{"q1", {{.rowId = "o2"}}},
                    TovuAnswer{"q2", {{.rowId = "r1", .colId = "c3"}, {.rowId = "r2", .colId = "c1"}}}},
    };
}

TovuQualityFlags qualityFlags()
{
    return TovuQualityFlags{
        .data = {.timePerQues = {{"q1", {3.25}}, {"q2", {1.0 / 3.0}}},
                 .survey = {.totalTimeDuration = 3.1166666666666667,
                            .netTimeDuration = 0.07,
                            .curTime = "2024-05-01T10:03:07Z",
                            .startTime = (std::int64_t{1} << 53) + 1,
                            .backTrackCount = 2}},
        .straightLining = {.questionList = {"q2", "q1"}},
    };
}

TovuQueuedResponse fullResponse()
{
    TovuQueuedResponse response = minimalResponse();
    response.customVariables = std::map<std::string, std::string>{{"plan", "pro"}, {"email", "a@b.c"}};
    response.qualityFlags = qualityFlags();
    response.deviceInfo = TovuDeviceInfo{"mobile", "iOS 17.4", "native"};
    response.geolocation = TovuGeolocation{"Point", {51.5, -0.12}, "GB", "London", "England"};
    return response;
}

} // namespace

TEST(ResponseRecordsCoding, AnswerValuesWriteOnlyPresentFields)
{
    EXPECT_EQ(encodedText(TovuAnswerValue{.rowId = "r1"}), R"({"rowId":"r1"})");
    EXPECT_EQ(encodedText(TovuAnswerValue{.rowId = "r1", .type = "text"}), R"({"rowId":"r1","type":"text"})");
    const TovuAnswerValue full{"r1", "c2", "Fast & free", "choice"};
    const auto encoded = tovuEncode(full);
    ASSERT_TRUE(encoded);
    EXPECT_EQ(keysOfText(*encoded), (Keys{"rowId", "colId", "text", "type"}));
    EXPECT_EQ(tovuDecode<TovuAnswerValue>(*encoded), full);

    // Null optionals decode as absent.
    EXPECT_EQ(tovuDecode<TovuAnswerValue>(R"({"rowId":"r","colId":null,"text":null,"type":null})"),
              TovuAnswerValue{.rowId = "r"});

    const TovuAnswer answer{"q1", {{.rowId = "b"}, {.rowId = "a", .text = "typed"}}};
    const auto answerText = tovuEncode(answer);
    ASSERT_TRUE(answerText);
    EXPECT_EQ(*answerText, R"({"questionId":"q1","value":[{"rowId":"b"},{"rowId":"a","text":"typed"}]})");
    EXPECT_EQ(tovuDecode<TovuAnswer>(*answerText), answer);
    EXPECT_EQ(tovuDecode<TovuAnswer>(R"({"questionId":"q","value":[]})"), (TovuAnswer{"q", {}}));
}

TEST(ResponseRecordsCoding, QueuedResponseKeysFollowTheDeclaredOrder)
{
    const TovuQueuedResponse minimal = minimalResponse();
    const auto encoded = tovuEncode(minimal);
    ASSERT_TRUE(encoded);
    EXPECT_EQ(keysOfText(*encoded),
              (Keys{"responseId", "surveyId", "collectorUUID", "mode", "status", "startTime", "endTime", "answers"}));
    EXPECT_EQ(tovuDecode<TovuQueuedResponse>(*encoded), minimal);

    const TovuQueuedResponse full = fullResponse();
    const auto fullText = tovuEncode(full);
    ASSERT_TRUE(fullText) << fullText.error().message;
    const Json json = Json::parse(*fullText);
    EXPECT_EQ(keysOf(json),
              (Keys{"responseId", "surveyId", "collectorUUID", "mode", "status", "startTime", "endTime", "answers",
                    "customVariables", "qualityFlags", "deviceInfo", "geolocation"}));
    EXPECT_EQ(json["customVariables"], (Json{{"email", "a@b.c"}, {"plan", "pro"}}));
    EXPECT_EQ(keysOf(json["deviceInfo"]), (Keys{"type", "os", "browser"}));
    EXPECT_EQ(keysOf(json["geolocation"]), (Keys{"type", "coordinates", "country", "city", "region"}));
    EXPECT_EQ(tovuDecode<TovuQueuedResponse>(*fullText), full);

    // An empty map is a value, distinct from an absent one.
    TovuQueuedResponse emptyVariables = minimal;
    emptyVariables.customVariables.emplace();
    const auto emptyText = tovuEncode(emptyVariables);
    EXPECT_EQ(Json::parse(*emptyText)["customVariables"], Json::object());
    EXPECT_EQ(tovuDecode<TovuQueuedResponse>(*emptyText), emptyVariables);

    Json withNulls = Json::parse(*encoded);
    for (const char *key : {"customVariables", "qualityFlags", "deviceInfo", "geolocation"})
        withNulls[key] = nullptr;
    withNulls["appVersion"] = "2.1";
    EXPECT_EQ(decodeJson<TovuQueuedResponse>(withNulls), minimal);
}

TEST(ResponseRecordsCoding, QueuedResponseRequiredFieldsAndKinds)
{
    const Json base = Json::parse(encodedText(fullResponse()));
    const std::vector<Damage> damages{
        {"/answers", std::nullopt, Code::keyNotFound, "answers: required key of TovuQueuedResponse is missing"},
        {"/answers", Json(nullptr), Code::valueNotFound, "answers: required value of TovuQueuedResponse is null"},
        {"/customVariables/plan", 3, Code::typeMismatch, "customVariables.plan: expected string, found integer"},
        {"/deviceInfo/browser", std::nullopt, Code::keyNotFound,
         "deviceInfo.browser: required key of TovuDeviceInfo is missing"},
        {"/geolocation/city", false, Code::typeMismatch, "geolocation.city: expected string, found boolean"},
        {"/startTime", 1714557600, Code::typeMismatch, "startTime: expected string, found integer"},
        {"/answers/0/value", Json{{"rowId", "r"}}, Code::typeMismatch,
         "answers[0].value: expected array, found object"},
        {"/answers/1/value/1/rowId", 7, Code::typeMismatch,
         "answers[1].value[1].rowId: expected string, found integer"},
        {"/answers/1/value/0/rowId", std::nullopt, Code::keyNotFound,
         "answers[1].value[0].rowId: required key of TovuAnswerValue is missing"},
        {"/answers/0/value/0/rowId", Json(nullptr), Code::valueNotFound,
         "answers[0].value[0].rowId: required value of TovuAnswerValue is null"},
        {"/geolocation/coordinates/1", "2", Code::typeMismatch,
         "geolocation.coordinates[1]: expected number, found string"},
        {"/geolocation/coordinates", std::nullopt, Code::keyNotFound,
         "geolocation.coordinates: required key of TovuGeolocation is missing"},
        {"/qualityFlags/data/timePerQues/q2/timeOnQues", "1.5", Code::typeMismatch,
         "qualityFlags.data.timePerQues.q2.timeOnQues: expected number, found string"},
        {"/qualityFlags/data/survey/backTrackCount", 1.5, Code::typeMismatch,
         "qualityFlags.data.survey.backTrackCount: expected integer, found 1.5"},
        {"/qualityFlags/straightLining/questionList", std::nullopt, Code::keyNotFound,
         "qualityFlags.straightLining.questionList: required key of TovuQualityFlags::StraightLining is missing"},
    };
    for (const Damage &d : damages) {
        SCOPED_TRACE(d.pointer);
        EXPECT_TRUE(failsWith(decodeJson<TovuQueuedResponse>(changed(base, d.pointer, d.value)), d.code, d.message));
    }
}

TEST(ResponseRecordsCoding, CoordinatesKeepAbsentElementsAsNull)
{
    const TovuGeolocation location{.type = "Point", .coordinates = {std::nullopt, 2.5}};
    const auto encoded = tovuEncode(location);
    ASSERT_TRUE(encoded);
    EXPECT_EQ(*encoded, R"({"type":"Point","coordinates":[null,2.5]})");
    EXPECT_EQ(tovuDecode<TovuGeolocation>(*encoded), location);

    // Whole numbers are doubles too; an empty list stays empty.
    const auto ints = tovuDecode<TovuGeolocation>(R"({"type":"Point","coordinates":[1,-2,null]})");
    ASSERT_TRUE(ints);
    EXPECT_EQ(ints->coordinates, (std::vector<std::optional<double>>{1.0, -2.0, std::nullopt}));
    EXPECT_EQ(tovuDecode<TovuGeolocation>(R"({"type":"Point","coordinates":[]})"), (TovuGeolocation{.type = "Point"}));
}

TEST(ResponseRecordsCoding, QualityFlagsRoundTripWithExactNumbers)
{
    const TovuQualityFlags flags = qualityFlags();
    const auto encoded = tovuEncode(flags);
    ASSERT_TRUE(encoded) << encoded.error().message;
    const Json json = Json::parse(*encoded);
    EXPECT_EQ(keysOf(json), (Keys{"data", "straightLining"}));
    EXPECT_EQ(keysOf(json["data"]), (Keys{"timePerQues", "survey"}));
    EXPECT_EQ(keysOf(json["data"]["survey"]),
              (Keys{"totalTimeDuration", "netTimeDuration", "curTime", "startTime", "backTrackCount"}));
    EXPECT_EQ(json["data"]["timePerQues"]["q1"], (Json{{"timeOnQues", 3.25}}));
    EXPECT_EQ(json["straightLining"]["questionList"], (Json{"q2", "q1"}));
    // 2^53 + 1 has no double; it must be written as an integer, digit for digit.
    EXPECT_TRUE(json["data"]["survey"]["startTime"].is_number_integer());
    EXPECT_NE(encoded->find("\"startTime\":9007199254740993"), std::string::npos);

    const auto decoded = tovuDecode<TovuQualityFlags>(*encoded);
    ASSERT_TRUE(decoded) << decoded.error().message;
    EXPECT_EQ(*decoded, flags);
    EXPECT_EQ(decoded->data.survey.startTime, 9007199254740993);
    EXPECT_EQ(decoded->data.timePerQues.at("q2").timeOnQues, 1.0 / 3.0);
}

TEST(ResponseRecordsCoding, NonFiniteNumbersAreRefusedInsteadOfWrittenAsNull)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();

    TovuQueuedResponse response = fullResponse();
    response.qualityFlags->data.timePerQues["q1"].timeOnQues = nan;
    EXPECT_TRUE(
        failsWithPrefix(tovuEncode(response), Code::invalidValue, "qualityFlags.data.timePerQues.q1.timeOnQues: "));

    response = fullResponse();
    response.qualityFlags->data.survey.netTimeDuration = -inf;
    EXPECT_TRUE(
        failsWithPrefix(tovuEncode(response), Code::invalidValue, "qualityFlags.data.survey.netTimeDuration: "));

    response = fullResponse();
    response.geolocation->coordinates = {1.0, inf};
    EXPECT_TRUE(failsWithPrefix(tovuEncode(response), Code::invalidValue, "geolocation.coordinates[1]: "));

    const std::vector<TovuQueuedResponse> queue{fullResponse(), response};
    EXPECT_TRUE(failsWithPrefix(tovuEncode(queue), Code::invalidValue, "[1].geolocation.coordinates[1]: "));
}

TEST(ResponseRecordsCoding, OfflineQueueArrayRoundTrip)
{
    const std::vector<TovuQueuedResponse> queue{fullResponse(), minimalResponse("r-2")};
    const auto encoded = tovuEncode(queue);
    ASSERT_TRUE(encoded) << encoded.error().message;
    const Json json = Json::parse(*encoded);
    ASSERT_TRUE(json.is_array());
    ASSERT_EQ(json.size(), 2u);
    EXPECT_EQ(json[1]["responseId"], "r-2");
    EXPECT_EQ(tovuDecode<std::vector<TovuQueuedResponse>>(*encoded), queue);

    const auto empty = tovuDecode<std::vector<TovuQueuedResponse>>("[]");
    ASSERT_TRUE(empty);
    EXPECT_TRUE(empty->empty());
    EXPECT_EQ(encodedText(std::vector<TovuQueuedResponse>{}), "[]");

    Json damaged = json;
    damaged[1]["answers"][1]["value"][0].erase("rowId");
    EXPECT_TRUE(failsWith(decodeJson<std::vector<TovuQueuedResponse>>(damaged), Code::keyNotFound,
                          "[1].answers[1].value[0].rowId: required key of TovuAnswerValue is missing"));
    damaged = json;
    damaged[0].erase("answers");
    EXPECT_TRUE(failsWith(decodeJson<std::vector<TovuQueuedResponse>>(damaged), Code::keyNotFound,
                          "[0].answers: required key of TovuQueuedResponse is missing"));
    EXPECT_TRUE(failsWith(decodeJson<std::vector<TovuQueuedResponse>>(json[0]), Code::typeMismatch,
                          "expected array, found object"));
    EXPECT_TRUE(failsWith(tovuDecode<std::vector<TovuQueuedResponse>>("[null]"), Code::valueNotFound,
                          "[0]: expected TovuQueuedResponse object, found null"));
}
