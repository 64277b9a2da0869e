// Fault rules: a status and body, a delay, a dropped connection, for a number
// of requests matching a method and path prefix; /dev/ routes never hit.

#include "TovuDevServerTesting.h"

#include <TovuDevServer.h>

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <string>
#include <vector>

using namespace TovuDevServerTesting;
using nlohmann::json;

namespace {

constexpr const char *collectorPath = "/v3/collectors/collect/collector-customer-satisfaction";

class DevServerFaults : public ::testing::Test
{
protected:
    void SetUp() override
    {
        url = server.start();
        ASSERT_FALSE(url.empty()) << server.errorString();
        http = client(url);
    }

    void addFault(const json &rule)
    {
        const auto result = http->Post("/dev/faults", rule.dump(), "application/json");
        ASSERT_TRUE(result);
        ASSERT_EQ(result->status, 201) << result->body;
    }

    int collectorStatus()
    {
        const auto result = client(url)->Get(collectorPath);
        return result ? result->status : -1;
    }

    TovuDevServer server;
    std::string url;
    std::unique_ptr<httplib::Client> http;
};

TEST_F(DevServerFaults, statusRuleAnswersForCountRequestsThenRoutingResumes)
{
    addFault({{"method", "GET"},
              {"pathPrefix", "/v3/collectors"},
              {"status", 503},
              {"body", R"({"message": "Down for maintenance"})"},
              {"count", 2}});
    for (int i = 0; i < 2; ++i) {
        const auto result = http->Get(collectorPath);
        ASSERT_TRUE(result);
        EXPECT_EQ(result->status, 503);
        EXPECT_EQ(result->body, R"({"message": "Down for maintenance"})");
        EXPECT_EQ(result->get_header_value("Content-Type"), "application/json");
    }
    EXPECT_EQ(collectorStatus(), 200);
    const auto rules = http->Get("/dev/faults");
    ASSERT_TRUE(rules);
    EXPECT_EQ(parseJson(rules->body), json::array());
}

TEST_F(DevServerFaults, rulesMatchOnlyTheirMethodAndPathPrefix)
{
    addFault({{"method", "post"}, {"pathPrefix", "/v3/collectors"}, {"status", 500}});
    addFault({{"pathPrefix", "/v3/survey-management/surveys/responses"}, {"status", 429}, {"body", "slow down"}});
    EXPECT_EQ(collectorStatus(), 200);
    const auto survey
        = http->Get(std::string("/v3/survey-management/surveys/") + sampleSurveyId, {{"Authorization", demoBearer}});
    ASSERT_TRUE(survey);
    EXPECT_EQ(survey->status, 200);

    const auto count = http->Post("/v3/survey-management/surveys/responses/response-count", R"({"surveyUUIDs": ["a"]})",
                                  "application/json");
    ASSERT_TRUE(count);
    EXPECT_EQ(count->status, 429);
    EXPECT_EQ(count->body, "slow down");
    EXPECT_EQ(count->get_header_value("Content-Type"), "text/plain; charset=utf-8");

    // The POST rule is still waiting; a POST on that prefix takes it.
    const auto post = http->Post("/v3/collectors/collect/x", "{}", "application/json");
    ASSERT_TRUE(post);
    EXPECT_EQ(post->status, 500);
    EXPECT_EQ(post->body, "");
}

TEST_F(DevServerFaults, devRoutesAreNeverHit)
{
    addFault({{"pathPrefix", "/"}, {"status", 500}, {"count", 100}});
    addFault({{"pathPrefix", "/dev"}, {"drop", true}, {"count", 100}});
    const auto list = http->Get("/dev/responses");
    ASSERT_TRUE(list);
    EXPECT_EQ(list->status, 200);
    const auto rules = http->Get("/dev/faults");
    ASSERT_TRUE(rules);
    EXPECT_EQ(parseJson(rules->body).size(), 2u);
    EXPECT_EQ(collectorStatus(), 500);
}

TEST_F(DevServerFaults, deleteClearsEveryRule)
{
    addFault({{"pathPrefix", "/v3"}, {"status", 500}, {"count", 10}});
    addFault({{"pathPrefix", "/api"}, {"drop", true}});
    const auto cleared = http->Delete("/dev/faults");
    ASSERT_TRUE(cleared);
    EXPECT_EQ(cleared->status, 200);
    EXPECT_EQ(parseJson(cleared->body)["cleared"], 2);
    EXPECT_EQ(collectorStatus(), 200);
    const auto verify = http->Get("/api/v1/api-key/verify?zone=eu", {{"x-api-key", demoKey}});
    ASSERT_TRUE(verify);
    EXPECT_EQ(verify->status, 200);
}

TEST_F(DevServerFaults, dropClosesTheConnectionWithoutAnAnswer)
{
    addFault({{"pathPrefix", "/v3/survey-participation"}, {"drop", true}, {"count", 2}});
    const std::string path = "/v3/survey-participation/s/response/create-response";
    for (int i = 0; i < 2; ++i) {
        const auto dropped = http->Post(path, {{"Authorization", demoBearer}}, "{}", "application/json");
        EXPECT_FALSE(dropped) << "answered " << dropped->status;
    }
    // Used up: the same request is answered again (400 for the empty payload).
    const auto answered = http->Post(path, {{"Authorization", demoBearer}}, "{}", "application/json");
    ASSERT_TRUE(answered);
    EXPECT_EQ(answered->status, 400);
    EXPECT_EQ(collectorStatus(), 200);
}

TEST_F(DevServerFaults, delayHoldsTheAnswerWithoutHoldingOtherRequests)
{
    addFault({{"pathPrefix", "/v3/collectors"}, {"delayMs", 1500}});
    std::atomic<bool> delayedDone = false;
    const auto started = std::chrono::steady_clock::now();
    auto delayed = std::async(std::launch::async, [&] {
        const int status = collectorStatus();
        delayedDone = true;
        return status;
    });
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    const auto verify = client(url)->Get("/api/v1/api-key/verify?zone=eu", {{"x-api-key", demoKey}});
    ASSERT_TRUE(verify);
    EXPECT_EQ(verify->status, 200);
    EXPECT_FALSE(delayedDone) << "the delayed request finished before an undelayed one";

    EXPECT_EQ(delayed.get(), 200);
    EXPECT_GE(std::chrono::steady_clock::now() - started, std::chrono::milliseconds(1500));
}

TEST_F(DevServerFaults, delayThenStatusAnswersLateWithTheStatus)
{
    addFault({{"pathPrefix", "/api"}, {"delayMs", 300}, {"status", 502}});
    const auto started = std::chrono::steady_clock::now();
    const auto result = http->Get("/api/v1/api-key/verify?zone=eu", {{"x-api-key", demoKey}});
    ASSERT_TRUE(result);
    EXPECT_EQ(result->status, 502);
    EXPECT_GE(std::chrono::steady_clock::now() - started, std::chrono::milliseconds(300));
}

TEST_F(DevServerFaults, aClientThatGivesUpDuringADelayLeavesTheServerServing)
{
    addFault({{"pathPrefix", "/v3/collectors"}, {"delayMs", 800}, {"count", 3}});
    for (int i = 0; i < 3; ++i) {
        auto impatient = client(url);
        impatient->set_read_timeout(std::chrono::milliseconds(100));
        EXPECT_FALSE(impatient->Get(collectorPath));
    }
    // Let the delayed answers be written to the closed connections.
    std::this_thread::sleep_for(std::chrono::milliseconds(1200));
    EXPECT_EQ(collectorStatus(), 200);
}

TEST_F(DevServerFaults, stopEndsRequestsHeldByADelay)
{
    addFault({{"pathPrefix", "/v3/collectors"}, {"delayMs", 600000}});
    auto held = std::async(std::launch::async, [&] { return collectorStatus(); });
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    server.stop();
    EXPECT_FALSE(server.isRunning());
    // A generous bound: the point is that stop() did not wait out ten minutes.
    ASSERT_EQ(held.wait_for(std::chrono::seconds(20)), std::future_status::ready);
    EXPECT_EQ(held.get(), -1);
}

TEST_F(DevServerFaults, badRulesAreRefused)
{
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"", "body: invalid JSON: empty"},
        {"[]", "body: expected object, found array"},
        {R"({"status": 500})", "pathPrefix: missing"},
        {R"({"pathPrefix": 3})", "pathPrefix: expected string, found integer"},
        {R"({"pathPrefix": "v3"})", "pathPrefix: must start with \"/\""},
        {R"({"pathPrefix": "/", "method": ""})", "method: expected non-empty string, found string"},
        {R"({"pathPrefix": "/", "status": "500"})", "status: expected integer, found string"},
        {R"({"pathPrefix": "/", "status": 99})", "status: must be from 200 to 599"},
        {R"({"pathPrefix": "/", "body": {"message": "x"}})", "body: expected string, found object"},
        {R"({"pathPrefix": "/", "delayMs": -1})", "delayMs: must be from 0 to 600000"},
        {R"({"pathPrefix": "/", "delayMs": 1.5})", "delayMs: expected integer, found number"},
        {R"({"pathPrefix": "/", "drop": "yes"})", "drop: expected boolean, found string"},
        {R"({"pathPrefix": "/", "count": 0})", "count: must be at least 1"},
        {R"({"pathPrefix": "/", "times": 2})", "times: unknown member"},
    };
    for (const auto &[body, message] : cases) {
        const auto result = http->Post("/dev/faults", body, "application/json");
        ASSERT_TRUE(result) << body;
        EXPECT_EQ(result->status, 400) << body;
        EXPECT_EQ(messageOf(result), message) << body;
    }
    const auto rules = http->Get("/dev/faults");
    ASSERT_TRUE(rules);
    EXPECT_EQ(parseJson(rules->body), json::array());
}

} // namespace
