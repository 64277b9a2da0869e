#pragma once

// A fresh local backend per test, a backend client pointed at it, the console
// lines the client prints, and ways to wait for completions and to make the
// backend misbehave.

#include "TovuDevServer.h"

#include <tovukit_io/model/TovuLog.h>
#include <tovukit_io/network/TovuNetworkService.h>

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTest>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class TovuBackendFixture : public testing::Test
{
protected:
    using Json = nlohmann::ordered_json;

    void SetUp() override
    {
        url = server.start();
        ASSERT_FALSE(url.empty()) << server.errorString();
        service.configure("tovu-demo-key", "eu", TovuEnvironment::production);
        service.setBaseURLOverride(url);
        TovuLog::setHandler([this](std::string_view line) { log.emplace_back(line); });
    }

    void TearDown() override { TovuLog::setHandler({}); }

    /// Runs one call of the client and waits for its completion.
    template<class T>
    TovuResult<T> await(const std::function<void(std::function<void(TovuResult<T>)>)> &call, int timeoutMs = 15000)
    {
        std::optional<TovuResult<T>> result;
        int calls = 0;
        call([&](TovuResult<T> value) {
            ++calls;
            result = std::move(value);
        });
        EXPECT_TRUE(QTest::qWaitFor([&] { return result.has_value(); }, timeoutMs)) << "no completion";
        QTest::qWait(20); // a second completion would arrive now
        EXPECT_EQ(calls, 1) << "the completion must be called exactly once";
        if (!result)
            return std::unexpected(TovuError{"test", -1, "no completion"});
        return std::move(*result);
    }

    TovuResult<std::string> verify()
    {
        return await<std::string>([this](auto done) { service.verifyApiKey(std::move(done)); });
    }

    TovuResult<CollectorInfo> collector(const std::string &id)
    {
        return await<CollectorInfo>([this, id](auto done) { service.fetchCollector(id, std::move(done)); });
    }

    TovuResult<TovuSurvey> survey(const std::string &id)
    {
        return await<TovuSurvey>([this, id](auto done) { service.fetchSurvey(id, std::move(done)); });
    }

    /// A request to the backend's own /dev routes: status and body.
    std::pair<int, std::string> devRequest(const QByteArray &method, const std::string &path,
                                           const std::string &body = {})
    {
        QNetworkRequest request(QUrl(QString::fromStdString(url + path)));
        request.setRawHeader("Content-Type", "application/json");
        QNetworkReply *reply = devClient.sendCustomRequest(request, method, QByteArray::fromStdString(body));
        EXPECT_TRUE(QTest::qWaitFor([reply] { return reply->isFinished(); }, 15000));
        reply->deleteLater();
        return {reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(), reply->readAll().toStdString()};
    }

    /// Makes the backend answer the next matching request as the rule says.
    void addFault(const Json &rule)
    {
        const auto [status, body] = devRequest("POST", "/dev/faults", rule.dump());
        ASSERT_EQ(status / 100, 2) << body;
    }

    /// The next request to `pathPrefix` gets `status` with `body`.
    void answerNext(const std::string &pathPrefix, int status, const std::string &body)
    {
        addFault(Json{{"pathPrefix", pathPrefix}, {"status", status}, {"body", body}});
    }

    Json storedResponses()
    {
        const auto [status, body] = devRequest("GET", "/dev/responses");
        EXPECT_EQ(status, 200) << body;
        return Json::parse(body, nullptr, false);
    }

    /// The console lines from the first one that starts with `prefix` on.
    std::vector<std::string> logFrom(std::string_view prefix) const
    {
        for (auto it = log.begin(); it != log.end(); ++it) {
            if (it->starts_with(prefix))
                return {it, log.end()};
        }
        return {};
    }

    static std::string separator() { return "━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━"; }

    TovuDevServer server;
    std::string url;
    TovuNetworkService service;
    std::vector<std::string> log;

private:
    QNetworkAccessManager devClient;
};
