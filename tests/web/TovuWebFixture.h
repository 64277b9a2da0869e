#pragma once

// What the web tests share: a fresh local backend (TovuBackendFixture) that the
// shared backend client points at, a recording URL opener, a delegate that keeps
// what it hears, a phone-sized host window, and waiting helpers.

#include "TovuBackendFixture.h"

#include <tovukit_io/platform/TovuUrlOpener.h>
#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/web/TovuSurveyDelegate.h>

#include <QWebEnginePage>

#include <algorithm>

/// Keeps every report it hears.
class RecordingDelegate : public QObject, public TovuSurveyDelegate
{
public:
    void handleSurveyLoaded(const QVariantMap &response) override { reports.push_back(response); }

    std::vector<QVariantMap> reports;
};

class TovuWebFixture : public TovuBackendFixture
{
protected:
    static constexpr const char *customerSatisfaction = "03ce355f-163d-420a-9980-f630e7af337c";
    static constexpr int pageTimeoutMs = 20000;

    void SetUp() override
    {
        TovuBackendFixture::SetUp();
        TovuNetworkService::shared().setBaseURLOverride(url);
        TovuUrlOpener::setDefault(&opener);
        TovuMotion::setDurationScale(0);
        host.resize(390, 844);
        host.show();
    }

    void TearDown() override
    {
        TovuUrlOpener::setDefault(nullptr);
        TovuNetworkService::shared().setBaseURLOverride(std::nullopt);
        TovuBackendFixture::TearDown();
    }

    QString pageUrl(const std::string &surveyId = customerSatisfaction) const
    {
        return QString::fromStdString(url + "/web/" + surveyId);
    }

    bool logged(std::string_view line) const { return std::ranges::find(log, line) != log.end(); }
    bool waitForLine(std::string_view line, int timeoutMs = pageTimeoutMs)
    {
        return QTest::qWaitFor([&] { return logged(line); }, timeoutMs);
    }

    /// Runs `script` in the page's own world and gives its result.
    static QVariant evaluate(QWebEnginePage *page, const QString &script)
    {
        std::optional<QVariant> result;
        page->runJavaScript(script, [&result](const QVariant &value) { result = value; });
        EXPECT_TRUE(QTest::qWaitFor([&] { return result.has_value(); }, pageTimeoutMs)) << script.toStdString();
        return result.value_or(QVariant());
    }

    static QVariantMap loaded() { return {{QStringLiteral("Loaded"), QStringLiteral("YES")}}; }
    static QVariantMap surveyLoadedMessage() { return {{QStringLiteral("type"), QStringLiteral("surveyLoaded")}}; }

    TovuRecordingUrlOpener opener;
    RecordingDelegate delegate;
    QWidget host;
};
