#pragma once

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QObject>
#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class TovuDevServer;

/// One survey document the backend serves, and the ids a host configures it by.
struct TovuDemoSample {
    QString stem; ///< file name without ".json"
    QString surveyId;
    QString title;
    QString collectorId; ///< "collector-" + stem, as tovu-devserver names them
};

/// The demo's backend: tovu-devserver on 127.0.0.1 in this process, serving
/// the bundled samples with the demo key and a fresh response database, and
/// the dev routes the demo uses to list stored responses and to cut the
/// network off.
class TovuDemoBackend : public QObject
{
    Q_OBJECT
public:
    static constexpr const char *apiKey = "tovu-demo-key";
    /// The sample `make demo` plays: every question type in one survey.
    static constexpr const char *defaultSample = "every-question-type";

    /// Reads the samples; start() serves them on `port` (0: a free one).
    explicit TovuDemoBackend(std::uint16_t port = 0, QObject *parent = nullptr);
    ~TovuDemoBackend() override;

    /// Starts serving; false with errorString() when it cannot (say, the port is taken).
    bool start();
    QString errorString() const;
    /// "http://127.0.0.1:PORT" once started.
    QString url() const;

    /// The samples in file-name order.
    const std::vector<TovuDemoSample> &samples() const { return m_samples; }
    /// The sample with `text` as its file name, survey id or collector id; an
    /// empty text means the default sample.
    const TovuDemoSample *findSample(const QString &text) const;
    const TovuDemoSample *sampleForSurvey(const QString &surveyId) const;
    /// Why there are no samples, when there are none.
    QString samplesError() const;

    /// GET /dev/responses: every stored response, oldest first, as the JSON
    /// text the backend answers, or nothing when it could not be read.
    void fetchStoredResponses(std::function<void(std::optional<QByteArray>)> done);
    /// Makes the backend close every connection without an answer, as if the
    /// network were gone, or answers normally again. `done` gets whether the
    /// backend took the change.
    void setReachable(bool reachable, std::function<void(bool)> done);

private:
    void devRequest(const QByteArray &method, const QString &path, const QByteArray &body,
                    std::function<void(int status, QByteArray body)> done);

    std::unique_ptr<TovuDevServer> m_server;
    std::vector<TovuDemoSample> m_samples;
    QString m_catalogError;
    QString m_error;
    // Made on first use: the backend starts before the application object.
    std::unique_ptr<QNetworkAccessManager> m_dev;
};
