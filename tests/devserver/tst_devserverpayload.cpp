// The create-response route: a good payload is stored as sent and listed at
// /dev/responses; every wrong shape is refused with the path of the problem,
// and nothing of it is stored.

#include "TovuDevServerTesting.h"

#include <TovuDevServer.h>

#include <gtest/gtest.h>

#include <functional>
#include <regex>
#include <string>
#include <vector>

using namespace TovuDevServerTesting;
using nlohmann::json;

namespace {

json goodPayload()
{
    return json::parse(R"({
      "collector_id": "collector-customer-satisfaction",
      "responses": [{
        "response_status": "completed",
        "mode": "native",
        "userAgent": "Mozilla/5.0 (iPhone; CPU iPhone OS 17_0 like Mac OS X) AppleWebKit/605.1.15 (KHTML, like Gecko) Mobile/15E148",
        "start_time": "2025-03-01T10:00:00Z",
        "end_time": "2025-03-01T10:02:00Z",
        "time_spent": 119,
        "custom_variables": {"plan": "pro", "country": "KE"},
        "qualityFlags": {"data": {"survey": {"netTimeDuration": 1.99}}},
        "deviceInfo": {"os": "Linux"},
        "geoLocation": {"country": "Kenya"},
        "questions": [
          {"uuid": "q1", "answer": [{"row_id": "r1"}]},
          {"uuid": "q2", "answer": [{"row_id": "r2", "col_id": "c3"}, {"text": "hello"}]},
          {"uuid": "q3", "answer": []}
        ]
      }]
    })");
}

class DevServerPayload : public ::testing::Test
{
protected:
    void SetUp() override
    {
        url = server.start();
        ASSERT_FALSE(url.empty()) << server.errorString();
        http = client(url);
    }

    httplib::Result submit(const std::string &body, const std::string &surveyId = "survey-1")
    {
        return http->Post("/v3/survey-participation/" + surveyId + "/response/create-response",
                          {{"Authorization", demoBearer}}, body, "application/json");
    }

    json stored(const std::string &query = "")
    {
        const auto result = http->Get("/dev/responses" + query);
        EXPECT_TRUE(result);
        EXPECT_EQ(result->status, 200);
        return parseJson(result->body);
    }

    TovuDevServer server;
    std::string url;
    std::unique_ptr<httplib::Client> http;
};

TEST_F(DevServerPayload, goodPayloadsAreStoredAsSentAndListedOldestFirst)
{
    const json full = goodPayload();
    json minimal
        = {{"collector_id", "c"},
           {"responses",
            {{{"response_status", "partial"}, {"mode", "web"}, {"userAgent", "u"}, {"questions", json::array()}}}}};

    const auto first = submit(full.dump(2), "survey-1");
    ASSERT_TRUE(first);
    EXPECT_EQ(first->status, 201);
    EXPECT_EQ(parseJson(first->body), json::parse(R"({"message": "Response created"})"));
    const auto second = submit(minimal.dump(), "survey-2");
    ASSERT_TRUE(second);
    EXPECT_EQ(second->status, 201);

    const json all = stored();
    ASSERT_EQ(all.size(), 2u);
    EXPECT_EQ(all[0]["surveyId"], "survey-1");
    EXPECT_EQ(all[0]["payload"], full);
    EXPECT_EQ(all[1]["surveyId"], "survey-2");
    EXPECT_EQ(all[1]["payload"], minimal);
    EXPECT_LT(all[0]["id"].get<std::int64_t>(), all[1]["id"].get<std::int64_t>());
    const std::regex iso8601(R"(\d{4}-\d{2}-\d{2}T\d{2}:\d{2}:\d{2}Z)");
    for (const json &entry : all)
        EXPECT_TRUE(std::regex_match(entry["receivedAt"].get<std::string>(), iso8601)) << entry["receivedAt"];
    // Member order is the client's, not sorted.
    EXPECT_NE(http->Get("/dev/responses")->body.find(R"("collector_id":"c","responses")"), std::string::npos);

    const json onlySecond = stored("?surveyId=survey-2");
    ASSERT_EQ(onlySecond.size(), 1u);
    EXPECT_EQ(onlySecond[0]["payload"], minimal);
    EXPECT_EQ(stored("?surveyId=nobody"), json::array());
}

TEST_F(DevServerPayload, wrongShapesAreRefusedWithThePathOfTheProblem)
{
    using Change = std::function<void(json &)>;
    struct Case {
        Change change;
        std::string message;
    };
    const std::vector<Case> cases = {
        {[](json &p) { p = json::array(); }, "body: expected object, found array"},
        {[](json &p) { p = "text"; }, "body: expected object, found string"},
        {[](json &p) { p.erase("collector_id"); }, "collector_id: missing"},
        {[](json &p) { p["collector_id"] = 12; }, "collector_id: expected string, found integer"},
        {[](json &p) { p["collector_id"] = nullptr; }, "collector_id: expected string, found null"},
        {[](json &p) { p.erase("responses"); }, "responses: missing"},
        {[](json &p) { p["responses"] = json::object(); }, "responses: expected array, found object"},
        {[](json &p) { p["responses"] = json::array(); }, "responses: expected at least one response"},
        {[](json &p) { p["responses"].push_back("late"); }, "responses[1]: expected object, found string"},
        {[](json &p) { p["surveyId"] = "s"; }, "surveyId: unknown member"},
        {[](json &p) { p["responses"][0].erase("response_status"); }, "responses[0].response_status: missing"},
        {[](json &p) { p["responses"][0]["mode"] = nullptr; }, "responses[0].mode: expected string, found null"},
        {[](json &p) { p["responses"][0]["userAgent"] = false; },
         "responses[0].userAgent: expected string, found boolean"},
        {[](json &p) { p["responses"][0]["start_time"] = 1700000000; },
         "responses[0].start_time: expected string, found integer"},
        {[](json &p) { p["responses"][0]["end_time"] = nullptr; },
         "responses[0].end_time: expected string, found null"},
        {[](json &p) { p["responses"][0]["time_spent"] = 1.5; },
         "responses[0].time_spent: expected integer, found number"},
        {[](json &p) { p["responses"][0]["time_spent"] = "119"; },
         "responses[0].time_spent: expected integer, found string"},
        {[](json &p) { p["responses"][0]["custom_variables"] = json::array(); },
         "responses[0].custom_variables: expected object, found array"},
        {[](json &p) { p["responses"][0]["custom_variables"]["seats"] = 3; },
         "responses[0].custom_variables.seats: expected string, found integer"},
        {[](json &p) { p["responses"][0]["qualityFlags"] = "good"; },
         "responses[0].qualityFlags: expected object, found string"},
        {[](json &p) { p["responses"][0]["deviceInfo"] = json::array(); },
         "responses[0].deviceInfo: expected object, found array"},
        {[](json &p) { p["responses"][0]["geoLocation"] = 1; },
         "responses[0].geoLocation: expected object, found integer"},
        {[](json &p) {
             p["responses"][0]["geolocation"] = p["responses"][0]["geoLocation"];
             p["responses"][0].erase("geoLocation");
         },
         "responses[0].geolocation: unknown member"},
        {[](json &p) { p["responses"][0].erase("questions"); }, "responses[0].questions: missing"},
        {[](json &p) { p["responses"][0]["questions"] = json::object(); },
         "responses[0].questions: expected array, found object"},
        {[](json &p) { p["responses"][0]["questions"][1] = "q2"; },
         "responses[0].questions[1]: expected object, found string"},
        {[](json &p) { p["responses"][0]["questions"][0].erase("uuid"); }, "responses[0].questions[0].uuid: missing"},
        {[](json &p) { p["responses"][0]["questions"][0]["uuid"] = 1; },
         "responses[0].questions[0].uuid: expected string, found integer"},
        {[](json &p) { p["responses"][0]["questions"][2].erase("answer"); },
         "responses[0].questions[2].answer: missing"},
        {[](json &p) { p["responses"][0]["questions"][0]["answer"] = json::object(); },
         "responses[0].questions[0].answer: expected array, found object"},
        {[](json &p) { p["responses"][0]["questions"][1]["answer"][1] = "hello"; },
         "responses[0].questions[1].answer[1]: expected object, found string"},
        {[](json &p) { p["responses"][0]["questions"][1]["answer"][0]["row_id"] = 7; },
         "responses[0].questions[1].answer[0].row_id: expected string, found integer"},
        {[](json &p) { p["responses"][0]["questions"][1]["answer"][0]["col_id"] = nullptr; },
         "responses[0].questions[1].answer[0].col_id: expected string, found null"},
        {[](json &p) { p["responses"][0]["questions"][1]["answer"][1]["text"] = json::array(); },
         "responses[0].questions[1].answer[1].text: expected string, found array"},
        {[](json &p) { p["responses"][0]["questions"][0]["answer"][0]["type"] = "SINGLE_CHOICE"; },
         "responses[0].questions[0].answer[0].type: unknown member"},
        {[](json &p) { p["responses"][0]["questions"][0]["questionId"] = "q1"; },
         "responses[0].questions[0].questionId: unknown member"},
    };
    for (const Case &c : cases) {
        json payload = goodPayload();
        c.change(payload);
        const auto result = submit(payload.dump());
        ASSERT_TRUE(result) << c.message;
        EXPECT_EQ(result->status, 400) << payload.dump();
        EXPECT_EQ(messageOf(result), c.message) << payload.dump();
    }
    EXPECT_EQ(stored(), json::array());
}

TEST_F(DevServerPayload, malformedBodiesAreRefusedAndTheServerCarriesOn)
{
    const std::string deep = std::string(100000, '[') + std::string(100000, ']');
    const std::vector<std::string> bodies = {
        "", "   ", "{", "{\"collector_id\": \"c\",}", "nul", "{\"collector_id\": \"\xff\"}",
    };
    for (const std::string &body : bodies) {
        const auto result = submit(body);
        ASSERT_TRUE(result) << body.substr(0, 40);
        EXPECT_EQ(result->status, 400) << body.substr(0, 40);
        EXPECT_TRUE(messageOf(result).starts_with("body: invalid JSON: ")) << messageOf(result);
    }
    const auto tooDeep = submit(deep);
    ASSERT_TRUE(tooDeep);
    EXPECT_EQ(tooDeep->status, 400);
    EXPECT_EQ(messageOf(tooDeep), "body: document is nested deeper than 64 levels");
    EXPECT_EQ(stored(), json::array());
    const auto good = submit(goodPayload().dump());
    ASSERT_TRUE(good);
    EXPECT_EQ(good->status, 201);
}

} // namespace
