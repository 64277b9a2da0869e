// What goes wrong below HTTP: time-outs, dropped connections, a backend that
// is not there, and a client that goes away while a request is under way.

#include "TovuBackendFixture.h"

#include <QNetworkReply>

#include <chrono>
#include <memory>

using namespace std::chrono_literals;

using TransportFailures = TovuBackendFixture;

TEST_F(TransportFailures, ATimeOutIsReportedAsOne)
{
    service.setTransferTimeout(300ms);
    addFault(Json{{"pathPrefix", "/api/v1/api-key/verify"}, {"delayMs", 3000}});
    const auto result = verify();
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().domain, "QNetworkReply");
    EXPECT_EQ(result.error().code, QNetworkReply::TimeoutError);
    EXPECT_EQ(result.error().message, "The request timed out: no data for 300 ms");
    EXPECT_EQ(service.bearerToken(), std::nullopt);

    // A slow answer inside the time-out is fine.
    addFault(Json{{"pathPrefix", "/api/v1/api-key/verify"}, {"delayMs", 100}});
    EXPECT_TRUE(verify());
}

TEST_F(TransportFailures, ADroppedConnectionIsATransportError)
{
    // Qt sends a GET once more when the connection closes before any answer,
    // so the backend drops both.
    addFault(Json{{"pathPrefix", "/v3/collectors"}, {"drop", true}, {"count", 2}});
    const auto result = collector("collector-onboarding");
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().domain, "QNetworkReply");
    EXPECT_NE(result.error().code, 0);
    EXPECT_FALSE(result.error().message.empty());
    // Only the block's head was printed: no status for an answer that never came.
    EXPECT_EQ(log.back(), "    collectorId : collector-onboarding");

    EXPECT_TRUE(collector("collector-onboarding")); // the rule is used up
}

TEST_F(TransportFailures, NoBackendAtAll)
{
    server.stop();
    const auto result = verify();
    ASSERT_FALSE(result);
    EXPECT_EQ(result.error().domain, "QNetworkReply");
    EXPECT_EQ(result.error().code, QNetworkReply::ConnectionRefusedError);
}

TEST_F(TransportFailures, NoCompletionOnceTheClientIsGone)
{
    auto client = std::make_unique<TovuNetworkService>();
    client->configure("tovu-demo-key", "eu", TovuEnvironment::production);
    client->setBaseURLOverride(url);
    addFault(Json{{"pathPrefix", "/api/v1/api-key/verify"}, {"delayMs", 300}});
    bool called = false;
    client->verifyApiKey([&called](const TovuResult<std::string> &) { called = true; });
    client.reset();
    QTest::qWait(600);
    EXPECT_FALSE(called);
}
