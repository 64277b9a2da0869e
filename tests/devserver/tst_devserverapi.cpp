// The backend routes of tovu-devserver as a client sees them over loopback:
// key verification, collectors, survey documents, response counts, the
// hosted page and the start-up checks.

#include "TovuDevServerTesting.h"

#include <TovuDevServer.h>
#include <TovuTestFiles.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace TovuDevServerTesting;
using nlohmann::json;

namespace {

class DevServerApi : public ::testing::Test
{
protected:
    void SetUp() override
    {
        url = server.start();
        ASSERT_FALSE(url.empty()) << server.errorString();
        http = client(url);
    }

    httplib::Result post(const std::string &path, const std::string &body, const httplib::Headers &headers = {})
    {
        return http->Post(path, headers, body, "application/json");
    }

    void storeResponses(const std::string &surveyId, int count)
    {
        const json payload = {{"collector_id", "c"},
                              {"responses",
                               {{{"response_status", "completed"},
                                 {"mode", "native"},
                                 {"userAgent", "test"},
                                 {"questions", json::array()}}}}};
        for (int i = 0; i < count; ++i) {
            const auto result = post("/v3/survey-participation/" + surveyId + "/response/create-response",
                                     payload.dump(), {{"Authorization", demoBearer}});
            ASSERT_TRUE(result);
            ASSERT_EQ(result->status, 201) << result->body;
        }
    }

    TovuDevServer server;
    std::string url;
    std::unique_ptr<httplib::Client> http;
};

// --- key verification --------------------------------------------------------

TEST_F(DevServerApi, verifyIssuesTheDemoTokenUnderDataToken)
{
    const auto result = http->Get("/api/v1/api-key/verify?zone=eu", {{"x-api-key", demoKey}});
    ASSERT_TRUE(result);
    EXPECT_EQ(result->status, 200);
    EXPECT_EQ(result->get_header_value("Content-Type"), "application/json");
    EXPECT_EQ(parseJson(result->body), json::parse(R"({"data": {"token": "tovu-demo-token"}})"));
}

TEST_F(DevServerApi, verifyRefusesMissingOrUnknownKeysAndAMissingZone)
{
    auto result = http->Get("/api/v1/api-key/verify?zone=eu");
    ASSERT_TRUE(result);
    EXPECT_EQ(result->status, 401);
    EXPECT_EQ(messageOf(result), "Invalid API key");

    result = http->Get("/api/v1/api-key/verify?zone=eu", {{"x-api-key", "someone-elses-key"}});
    ASSERT_TRUE(result);
    EXPECT_EQ(result->status, 401);
    EXPECT_EQ(messageOf(result), "Invalid API key");

    for (const char *path : {"/api/v1/api-key/verify", "/api/v1/api-key/verify?zone="}) {
        result = http->Get(path, {{"x-api-key", demoKey}});
        ASSERT_TRUE(result);
        EXPECT_EQ(result->status, 400) << path;
        EXPECT_EQ(messageOf(result), "zone: missing query parameter") << path;
    }
}

TEST(DevServerConfig, verifyAnswersInEachKeysConfiguredTokenShape)
{
    TemporaryFolder folder;
    const auto config = folder.write("config.json", R"({"keys": [
        {"key": "k1", "token": "t1", "tokenShape": "access_token"},
        {"key": "k2", "token": "t2", "tokenShape": "token"},
        {"key": "k3", "token": "t3", "tokenShape": "data.token"},
        {"key": "k4", "token": "t4", "tokenShape": "bearerToken"},
        {"key": "k5", "token": "t5", "tokenShape": "data.access_token"},
        {"key": "k6"}]})");
    TovuDevServer server({.configPath = config});
    const std::string url = server.start();
    ASSERT_FALSE(url.empty()) << server.errorString();
    const auto http = client(url);

    const std::vector<std::pair<std::string, std::string>> expected = {
        {"k1", R"({"access_token": "t1"})"},           {"k2", R"({"token": "t2"})"},
        {"k3", R"({"data": {"token": "t3"}})"},        {"k4", R"({"bearerToken": "t4"})"},
        {"k5", R"({"data": {"access_token": "t5"}})"}, {"k6", R"({"data": {"token": "k6-token"}})"},
    };
    for (const auto &[key, body] : expected) {
        const auto result = http->Get("/api/v1/api-key/verify?zone=eu", {{"x-api-key", key}});
        ASSERT_TRUE(result) << key;
        EXPECT_EQ(result->status, 200) << key;
        EXPECT_EQ(parseJson(result->body), json::parse(body)) << key;
    }
    // The config replaced the key list, so the demo key is gone…
    const auto demo = http->Get("/api/v1/api-key/verify?zone=eu", {{"x-api-key", demoKey}});
    ASSERT_TRUE(demo);
    EXPECT_EQ(demo->status, 401);
    // …and each key's token opens the guarded routes.
    const auto survey
        = http->Get(std::string("/v3/survey-management/surveys/") + sampleSurveyId, {{"Authorization", "Bearer t4"}});
    ASSERT_TRUE(survey);
    EXPECT_EQ(survey->status, 200);
}

// --- bearer checks -----------------------------------------------------------

TEST_F(DevServerApi, guardedRoutesWantAnIssuedBearerToken)
{
    const std::string surveyPath = std::string("/v3/survey-management/surveys/") + sampleSurveyId;
    const std::string submitPath
        = std::string("/v3/survey-participation/") + sampleSurveyId + "/response/create-response";
    const std::vector<httplib::Headers> refused = {
        {},
        {{"Authorization", "Bearer not-issued"}},
        {{"Authorization", "tovu-demo-token"}},
        {{"Authorization", "Basic tovu-demo-token"}},
        {{"Authorization", "Bearer "}},
    };
    for (const httplib::Headers &headers : refused) {
        const std::string shown = headers.empty() ? "(none)" : headers.begin()->second;
        const auto survey = http->Get(surveyPath, headers);
        ASSERT_TRUE(survey);
        EXPECT_EQ(survey->status, 401) << shown;
        EXPECT_EQ(messageOf(survey), "Unauthorized") << shown;
        // Refused before the body is looked at: even a bad body gets 401.
        const auto submit = post(submitPath, "{", headers);
        ASSERT_TRUE(submit);
        EXPECT_EQ(submit->status, 401) << shown;
        EXPECT_EQ(messageOf(submit), "Unauthorized") << shown;
    }
    const auto stored = http->Get("/dev/responses");
    ASSERT_TRUE(stored);
    EXPECT_EQ(parseJson(stored->body), json::array());
}

TEST_F(DevServerApi, collectorAnswersWithOrWithoutBearer)
{
    for (const httplib::Headers &headers : {httplib::Headers{}, httplib::Headers{{"Authorization", demoBearer}},
                                            httplib::Headers{{"Authorization", "Bearer stale"}}}) {
        const auto result = http->Get("/v3/collectors/collect/collector-customer-satisfaction", headers);
        ASSERT_TRUE(result);
        EXPECT_EQ(result->status, 200);
        const json data = parseJson(result->body)["data"];
        EXPECT_EQ(data["uuid"], "collector-customer-satisfaction");
        EXPECT_EQ(data["surveyId"], sampleSurveyId);
        EXPECT_TRUE(data["_id"].is_string() && !data["_id"].get<std::string>().empty());
        EXPECT_TRUE(data["nick"].is_string() && !data["nick"].get<std::string>().empty());
    }
}

// --- collectors and survey documents ----------------------------------------

TEST_F(DevServerApi, everySampleHasACollectorNamedAfterItsFileThatLeadsToItsDocument)
{
    for (const auto &file : TovuTestFiles::sampleSurveys()) {
        const std::string text = TovuTestFiles::readFile(file);
        const auto collector = http->Get("/v3/collectors/collect/collector-" + file.stem().string());
        ASSERT_TRUE(collector);
        ASSERT_EQ(collector->status, 200) << file;
        const std::string surveyId = parseJson(collector->body)["data"]["surveyId"].get<std::string>();
        EXPECT_EQ(surveyId, parseJson(text)["data"]["uuid"]) << file;

        const auto survey = http->Get("/v3/survey-management/surveys/" + surveyId, {{"Authorization", demoBearer}});
        ASSERT_TRUE(survey);
        EXPECT_EQ(survey->status, 200);
        EXPECT_EQ(survey->get_header_value("Content-Type"), "application/json");
        EXPECT_EQ(survey->body, text) << "served differently from " << file;
    }
}

TEST_F(DevServerApi, unknownCollectorsSurveysAndRoutesAnswer404)
{
    auto result = http->Get("/v3/collectors/collect/collector-nothing");
    ASSERT_TRUE(result);
    EXPECT_EQ(result->status, 404);
    EXPECT_EQ(parseJson(result->body), json::parse(R"({"data": {"errors": {"detail": "Collector not found"}}})"));

    result = http->Get("/v3/survey-management/surveys/no-such-survey", {{"Authorization", demoBearer}});
    ASSERT_TRUE(result);
    EXPECT_EQ(result->status, 404);
    EXPECT_EQ(parseJson(result->body), json::parse(R"({"data": {"errors": {"detail": "Survey not found"}}})"));

    for (const char *path : {"/v2/anything", "/api/v1/api-key", "/v3/collectors/collect/a/b", "/web"}) {
        result = http->Get(path);
        ASSERT_TRUE(result);
        EXPECT_EQ(result->status, 404) << path;
        EXPECT_EQ(parseJson(result->body), json::parse(R"({"message": "Not found"})")) << path;
    }
}

TEST_F(DevServerApi, aSurveyDocumentIsServedAsTheFileHasItEvenWhenTheLibraryWouldRefuseIt)
{
    TemporaryFolder data;
    // Odd spacing, a key order of its own and a question without a uuid.
    const std::string odd = "{ \"data\":{\"blocks\":[{\"questions\":[{\"question\":{}}]}],\n"
                            "  \"uuid\" : \"odd-1\", \"displayTitle\":\"Odd\\u00e9\"}}\n";
    data.write("odd.json", odd);
    data.write("notes.txt", "not a survey");
    data.write("broken.json", "{\"data\": ");
    TovuDevServer other({.dataDir = data.path()});
    const std::string otherUrl = other.start();
    ASSERT_FALSE(otherUrl.empty()) << other.errorString();
    const auto c = client(otherUrl);

    const auto survey = c->Get("/v3/survey-management/surveys/odd-1", {{"Authorization", demoBearer}});
    ASSERT_TRUE(survey);
    EXPECT_EQ(survey->status, 200);
    EXPECT_EQ(survey->body, odd);
    const auto collector = c->Get("/v3/collectors/collect/collector-odd");
    ASSERT_TRUE(collector);
    EXPECT_EQ(collector->status, 200);
    const auto broken = c->Get("/v3/collectors/collect/collector-broken");
    ASSERT_TRUE(broken);
    EXPECT_EQ(broken->status, 404);
    // The hosted page needs the library's reading of it, and says why it has none.
    const auto page = c->Get("/web/odd-1");
    ASSERT_TRUE(page);
    EXPECT_EQ(page->status, 500);
    EXPECT_NE(page->body.find("uuid"), std::string::npos);
}

// --- response count -----------------------------------------------------------

TEST_F(DevServerApi, responseCountPicksTheSurveyWithFewestResponsesAndTheFirstOnATie)
{
    storeResponses("survey-a", 2);
    storeResponses("survey-b", 1);
    storeResponses("survey-c", 1);

    const auto pick = [&](const json &ids) {
        const auto result
            = post("/v3/survey-management/surveys/responses/response-count", json{{"surveyUUIDs", ids}}.dump());
        EXPECT_TRUE(result);
        EXPECT_EQ(result->status, 200);
        return parseJson(result->body);
    };

    const json answer = pick({"survey-a", "survey-b", "survey-c"});
    EXPECT_EQ(answer,
              json::parse(R"({"success": true, "data": {"surveyUUID": "survey-b", "surveyId": "survey-b",
        "responseCount": 1, "surveyURL": ")"
                          + url + R"(/web/survey-b"}})"));
    EXPECT_EQ(pick({"survey-c", "survey-b"})["data"]["surveyUUID"], "survey-c");
    EXPECT_EQ(pick({"survey-a"})["data"]["responseCount"], 2);
    const json fresh = pick({"survey-a", "never-answered", "survey-b"});
    EXPECT_EQ(fresh["data"]["surveyUUID"], "never-answered");
    EXPECT_EQ(fresh["data"]["responseCount"], 0);
}

TEST_F(DevServerApi, responseCountRefusesBadBodies)
{
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"", "body: invalid JSON: empty"},
        {"[\"a\"]", "body: expected object, found array"},
        {"{}", "surveyUUIDs: missing"},
        {R"({"surveyUUIDs": "a"})", "surveyUUIDs: expected array, found string"},
        {R"({"surveyUUIDs": []})", "surveyUUIDs: expected at least one survey id"},
        {R"({"surveyUUIDs": ["a", 2]})", "surveyUUIDs[1]: expected string, found integer"},
    };
    for (const auto &[body, message] : cases) {
        const auto result = post("/v3/survey-management/surveys/responses/response-count", body);
        ASSERT_TRUE(result) << body;
        EXPECT_EQ(result->status, 400) << body;
        EXPECT_EQ(messageOf(result), message) << body;
    }
    const auto truncated = post("/v3/survey-management/surveys/responses/response-count", "{\"surveyUUIDs\": [");
    ASSERT_TRUE(truncated);
    EXPECT_EQ(truncated->status, 400);
    EXPECT_TRUE(messageOf(truncated).starts_with("body: invalid JSON: ")) << messageOf(truncated);
}

// --- hosted page --------------------------------------------------------------

TEST_F(DevServerApi, webPageShowsTheConvertedSurveyAndTalksThroughTheBridge)
{
    const auto page = http->Get(std::string("/web/") + sampleSurveyId);
    ASSERT_TRUE(page);
    EXPECT_EQ(page->status, 200);
    EXPECT_EQ(page->get_header_value("Content-Type"), "text/html; charset=utf-8");
    // Titles as the library cleans them ("<b>Acme Store</b>" loses its tags).
    EXPECT_NE(page->body.find("How likely are you to recommend Acme Store to a friend or colleague?"),
              std::string::npos);
    EXPECT_NE(page->body.find("window.webkit.messageHandlers"), std::string::npos);
    EXPECT_NE(page->body.find("surveyResponse.postMessage"), std::string::npos);
    EXPECT_NE(page->body.find("{type: 'surveyLoaded'}"), std::string::npos);
    EXPECT_NE(page->body.find("{type: 'surveyCompleted'}"), std::string::npos);

    const auto missing = http->Get("/web/%3Cb%3Enope%3C%5Cb%3E");
    ASSERT_TRUE(missing);
    EXPECT_EQ(missing->status, 404);
    EXPECT_EQ(missing->get_header_value("Content-Type"), "text/html; charset=utf-8");
    EXPECT_NE(missing->body.find("&lt;b&gt;nope&lt;\\b&gt;"), std::string::npos) << missing->body;
    EXPECT_EQ(missing->body.find("<b>nope"), std::string::npos);
}

TEST(DevServerWebPage, surveyTextIsEscapedWherePageShowsIt)
{
    TemporaryFolder data;
    // The display title is shown unchanged; question and option texts lose
    // their tags but have entities decoded, so both can carry markup.
    data.write("hostile.json", R"doc({"data": {
        "uuid": "hostile",
        "displayTitle": "<script>alert('title')</script>",
        "introPage": {"enabled": true, "content": "&lt;img src=x onerror=alert(1)&gt;"},
        "blocks": [{"questions": [
          {"question": {"uuid": "q1\"><script>alert(9)</script>", "quesType": "single_choice",
            "title": "&lt;script&gt;alert('question')&lt;/script&gt;",
            "helperText": {"text": "<i>hint</i> & more"},
            "options": {"row": [{"uuid": "o1", "text": "&lt;b onclick=alert(2)&gt;Yes&lt;/b&gt;"}]}}},
          {"question": {"uuid": "q2", "quesType": "single_text", "title": "Say",
            "placeholder": {"text": "\"><script>alert(3)</script>"}}}]}],
        "thankYouPage": {"enabled": true, "content": "Bye &lt;script&gt;", "links": "javascript:alert(4)"}}})doc");
    TovuDevServer server({.dataDir = data.path()});
    const std::string url = server.start();
    ASSERT_FALSE(url.empty()) << server.errorString();

    const auto page = client(url)->Get("/web/hostile");
    ASSERT_TRUE(page);
    ASSERT_EQ(page->status, 200);
    const std::string &html = page->body;
    // Only the page's own script element.
    std::size_t scripts = 0;
    for (std::size_t at = html.find("<script"); at != std::string::npos; at = html.find("<script", at + 1))
        ++scripts;
    EXPECT_EQ(scripts, 1u) << html;
    for (const char *shown :
         {"&lt;script&gt;alert(&#39;title&#39;)&lt;/script&gt;",
          "&lt;script&gt;alert(&#39;question&#39;)&lt;/script&gt;", "&lt;img src=x onerror=alert(1)&gt;",
          "&lt;b onclick=alert(2)&gt;Yes&lt;/b&gt;", "&lt;i&gt;hint&lt;/i&gt; &amp; more",
          "&quot;&gt;&lt;script&gt;alert(3)", "q1&quot;&gt;&lt;script&gt;alert(9)", "Bye &lt;script&gt;"}) {
        EXPECT_NE(html.find(shown), std::string::npos) << "missing " << shown;
    }
    for (const char *raw : {"<img", "<b ", "<i>", "onerror=alert(1)>", "javascript:"})
        EXPECT_EQ(html.find(raw), std::string::npos) << "found " << raw;
}

// --- instances, start-up and storage ---------------------------------------------

TEST(DevServerInstances, eachServerHasItsOwnEmptyStoreAndItsTemporaryFileGoesAwayWithIt)
{
    std::filesystem::path firstDatabase;
    {
        TovuDevServer first;
        TovuDevServer second;
        const std::string firstUrl = first.start();
        const std::string secondUrl = second.start();
        ASSERT_FALSE(firstUrl.empty()) << first.errorString();
        ASSERT_FALSE(secondUrl.empty()) << second.errorString();
        EXPECT_NE(firstUrl, secondUrl);
        EXPECT_NE(first.databasePath(), second.databasePath());
        firstDatabase = first.databasePath();
        EXPECT_TRUE(std::filesystem::exists(firstDatabase));

        const json payload = {{"collector_id", "c"},
                              {"responses",
                               {{{"response_status", "completed"},
                                 {"mode", "native"},
                                 {"userAgent", "test"},
                                 {"questions", json::array()}}}}};
        const auto created
            = client(firstUrl)->Post("/v3/survey-participation/s/response/create-response",
                                     {{"Authorization", demoBearer}}, payload.dump(), "application/json");
        ASSERT_TRUE(created);
        ASSERT_EQ(created->status, 201);

        const auto firstList = client(firstUrl)->Get("/dev/responses");
        const auto secondList = client(secondUrl)->Get("/dev/responses");
        ASSERT_TRUE(firstList);
        ASSERT_TRUE(secondList);
        EXPECT_EQ(parseJson(firstList->body).size(), 1u);
        EXPECT_EQ(parseJson(secondList->body), json::array());
    }
    EXPECT_FALSE(std::filesystem::exists(firstDatabase.parent_path()));
}

TEST(DevServerInstances, aGivenDatabaseKeepsResponsesAcrossRestarts)
{
    TemporaryFolder folder;
    const std::filesystem::path database = folder.path() / "kept.sqlite";
    const json payload = {
        {"collector_id", "c"},
        {"responses",
         {{{"response_status", "completed"}, {"mode", "native"}, {"userAgent", "t"}, {"questions", json::array()}}}}};
    for (int run = 1; run <= 2; ++run) {
        TovuDevServer server({.databasePath = database});
        const std::string url = server.start();
        ASSERT_FALSE(url.empty()) << server.errorString();
        const auto created = client(url)->Post("/v3/survey-participation/s/response/create-response",
                                               {{"Authorization", demoBearer}}, payload.dump(), "application/json");
        ASSERT_TRUE(created);
        ASSERT_EQ(created->status, 201);
        const auto list = client(url)->Get("/dev/responses");
        ASSERT_TRUE(list);
        EXPECT_EQ(parseJson(list->body).size(), static_cast<std::size_t>(run));
    }
    EXPECT_TRUE(std::filesystem::exists(database));
}

TEST(DevServerInstances, startFailsWithAReasonForBadSetups)
{
    TemporaryFolder folder;
    const std::vector<std::pair<std::string, std::string>> badConfigs = {
        {"{", "invalid JSON"},
        {"[]", "expected object, found array"},
        {R"({"kyes": []})", "kyes: unknown member"},
        {R"({"keys": [{"token": "t"}]})", "keys[0].key: missing"},
        {R"({"keys": [{"key": "k", "tokenShape": "cookie"}]})", "keys[0].tokenShape: unknown shape \"cookie\""},
        {R"({"keys": [{"key": "k"}, {"key": "k"}]})", "keys[1].key: \"k\" is listed twice"},
        {R"({"collectors": [{"id": "c"}]})", "collectors[0].surveyId: missing"},
        {R"({"collectors": [{"id": 3, "surveyId": "s"}]})",
         "collectors[0].id: expected non-empty string, found integer"},
    };
    for (const auto &[text, reason] : badConfigs) {
        const auto config = folder.write("config.json", text);
        TovuDevServer server({.configPath = config});
        EXPECT_EQ(server.start(), "") << text;
        EXPECT_EQ(server.startError(), TovuDevServer::StartError::setup) << text;
        EXPECT_NE(server.errorString().find(config.string()), std::string::npos) << server.errorString();
        EXPECT_NE(server.errorString().find(reason), std::string::npos) << server.errorString();
        EXPECT_FALSE(server.isRunning());
    }

    TovuDevServer noData({.dataDir = folder.path() / "missing"});
    EXPECT_EQ(noData.start(), "");
    EXPECT_EQ(noData.startError(), TovuDevServer::StartError::setup);

    TovuDevServer first;
    ASSERT_FALSE(first.start().empty()) << first.errorString();
    TovuDevServer samePort({.port = first.port()});
    EXPECT_EQ(samePort.start(), "");
    EXPECT_EQ(samePort.startError(), TovuDevServer::StartError::listen);
}

TEST(DevServerInstances, customCollectorsReplaceTheDefaults)
{
    TemporaryFolder folder;
    const auto config = folder.write("config.json", R"({"collectors": [
        {"id": "link-1", "surveyId": "s-1", "nick": "Spring campaign", "mongoId": "m-1"}]})");
    TovuDevServer server({.configPath = config});
    const std::string url = server.start();
    ASSERT_FALSE(url.empty()) << server.errorString();
    const auto http = client(url);
    const auto result = http->Get("/v3/collectors/collect/link-1");
    ASSERT_TRUE(result);
    EXPECT_EQ(parseJson(result->body), json::parse(R"({"data": {"_id": "m-1", "uuid": "link-1", "surveyId": "s-1",
        "nick": "Spring campaign"}})"));
    const auto gone = http->Get("/v3/collectors/collect/collector-customer-satisfaction");
    ASSERT_TRUE(gone);
    EXPECT_EQ(gone->status, 404);
    // The key list was not given, so the demo key still works.
    const auto verify = http->Get("/api/v1/api-key/verify?zone=eu", {{"x-api-key", demoKey}});
    ASSERT_TRUE(verify);
    EXPECT_EQ(verify->status, 200);
}

} // namespace
