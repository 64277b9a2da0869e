// What the backend client costs over loopback against the local backend:
// the start-up chain (verify, collector, survey) next to the same three
// requests made with a bare QNetworkAccessManager, and submissions per second
// with 1, 6 and 100 requests in flight.

#include "TovuDevServer.h"

#include <tovukit_io/model/TovuLog.h>
#include <tovukit_io/network/TovuFeedbackRequestJson.h>
#include <tovukit_io/network/TovuNetworkService.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>

#include <benchmark/benchmark.h>

#include <functional>
#include <memory>
#include <string>

namespace {

constexpr const char *collectorId = "collector-customer-satisfaction";
constexpr const char *surveyId = "03ce355f-163d-420a-9980-f630e7af337c";

// One backend for the whole run; each benchmark makes its own client.
TovuDevServer &backend()
{
    static TovuDevServer server;
    static const std::string url = server.start();
    (void)url;
    return server;
}

// Runs the event loop until `done` says so.
void spinUntil(const bool &done)
{
    while (!done)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void BM_ClientChain(benchmark::State &state)
{
    TovuNetworkService service;
    service.configure("tovu-demo-key", "eu", TovuEnvironment::production);
    service.setBaseURLOverride(backend().url());
    for (auto _ : state) {
        bool done = false;
        service.verifyApiKey([&](TovuResult<std::string> token) {
            if (!token)
                state.SkipWithError(token.error().message.c_str());
            service.fetchCollector(collectorId, [&](TovuResult<CollectorInfo> collector) {
                service.fetchSurvey(collector ? collector->surveyId : surveyId, [&](TovuResult<TovuSurvey> survey) {
                    if (!survey)
                        state.SkipWithError(survey.error().message.c_str());
                    benchmark::DoNotOptimize(survey);
                    done = true;
                });
            });
        });
        spinUntil(done);
    }
}
BENCHMARK(BM_ClientChain)->Unit(benchmark::kMicrosecond)->UseRealTime();

// The same three requests, headers and bodies read, nothing decoded.
void BM_BareRequests(benchmark::State &state)
{
    QNetworkAccessManager manager;
    const QString base = QString::fromStdString(backend().url());
    const auto get
        = [&manager](const QString &url, QByteArray header, QByteArray value, std::function<void(QByteArray)> next) {
              QNetworkRequest request{QUrl(url)};
              request.setTransferTimeout(60000);
              request.setRawHeader("Content-Type", "application/json");
              request.setRawHeader(header, value);
              QNetworkReply *reply = manager.get(request);
              QObject::connect(reply, &QNetworkReply::finished, [reply, next = std::move(next)] {
                  reply->deleteLater();
                  next(reply->readAll());
              });
          };
    for (auto _ : state) {
        bool done = false;
        get(base + u"/api/v1/api-key/verify?zone=eu", "x-api-key", "tovu-demo-key", [&](QByteArray) {
            get(base + u"/v3/collectors/collect/" + QLatin1String(collectorId), "Authorization",
                "Bearer tovu-demo-token", [&](QByteArray) {
                    get(base + u"/v3/survey-management/surveys/" + QLatin1String(surveyId), "Authorization",
                        "Bearer tovu-demo-token", [&](QByteArray body) {
                            benchmark::DoNotOptimize(body);
                            done = true;
                        });
                });
        });
        spinUntil(done);
    }
}
BENCHMARK(BM_BareRequests)->Unit(benchmark::kMicrosecond)->UseRealTime();

TovuFeedbackRequest sampleRequest()
{
    TovuQueuedResponse response{
        .responseId = "R",
        .surveyId = surveyId,
        .collectorUUID = collectorId,
        .mode = "mobile",
        .status = "completed",
        .startTime = "2026-11-21T10:00:00Z",
        .endTime = "2026-11-21T10:01:00Z",
        .answers = {{.questionId = "q1", .value = {{.rowId = "r1"}}},
                    {.questionId = "q2", .value = {{.rowId = "", .text = "Quick and friendly"}}}},
    };
    return makeFeedbackRequest(response, "17.4");
}

// Submissions per second with `inFlight` requests under way at any time.
void BM_Submissions(benchmark::State &state)
{
    const auto inFlight = state.range(0);
    constexpr int perIteration = 200;
    TovuNetworkService service;
    service.configure("tovu-demo-key", "eu", TovuEnvironment::production);
    service.setBaseURLOverride(backend().url());
    service.setBearerToken("tovu-demo-token");
    const TovuFeedbackRequest request = sampleRequest();
    for (auto _ : state) {
        int started = 0;
        int finished = 0;
        int failed = 0;
        std::function<void()> startOne = [&] {
            ++started;
            service.submitResponse(surveyId, request, [&](TovuResult<void> result) {
                ++finished;
                failed += result ? 0 : 1;
                if (started < perIteration)
                    startOne();
            });
        };
        for (int i = 0; i < inFlight && started < perIteration; ++i)
            startOne();
        while (finished < perIteration)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        if (failed > 0)
            state.SkipWithError("a submission failed");
    }
    state.SetItemsProcessed(state.iterations() * perIteration);
}
BENCHMARK(BM_Submissions)->Arg(1)->Arg(6)->Arg(100)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    // Console blocks would measure the terminal, not the client.
    TovuLog::setHandler([](std::string_view) {});
    benchmark::Initialize(&argc, argv);
    if (backend().url().empty())
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    backend().stop();
    return 0;
}
