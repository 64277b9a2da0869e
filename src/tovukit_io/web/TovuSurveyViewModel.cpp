#include <tovukit_io/web/TovuSurveyViewModel.h>

#include <tovukit_io/model/TovuLog.h>
#include <tovukit_io/platform/TovuUrlOpener.h>
#include <tovukit_io/web/TovuScriptMessage.h>
#include <tovukit_io/web/TovuSurveyDelegate.h>
#include <tovukit_io/web/TovuUserContentController.h>

namespace {

void print(const QString &line)
{
    TovuLog::print(line.toStdString());
}

} // namespace

TovuSurveyViewModel::TovuSurveyViewModel(QObject *parent)
    : QObject(parent)
{
    m_loadTimeout.setSingleShot(true);
    m_loadTimeout.setInterval(loadTimeoutMs);
    connect(&m_loadTimeout, &QTimer::timeout, this, [this] {
        Q_EMIT loadTimedOut();
        pageFailed(QStringLiteral("The request timed out."));
    });
}

void TovuSurveyViewModel::setGetSurveyLoadedResponse(bool value)
{
    if (m_getSurveyLoadedResponse == value)
        return;
    m_getSurveyLoadedResponse = value;
    Q_EMIT getSurveyLoadedResponseChanged();
}

TovuUrlOpener *TovuSurveyViewModel::urlOpener() const
{
    return m_urlOpener ? m_urlOpener : TovuUrlOpener::defaultOpener();
}

void TovuSurveyViewModel::setLoading(bool loading)
{
    if (m_loading == loading)
        return;
    m_loading = loading;
    Q_EMIT loadingChanged();
}

QUrl TovuSurveyViewModel::beginLoad(const QString &urlText)
{
    setLoading(true);
    const QUrl url(urlText, QUrl::StrictMode);
    if (urlText.isEmpty() || !url.isValid() || url.isRelative())
        return {};
    m_loadTimeout.start();
    return url;
}

void TovuSurveyViewModel::pageFinished()
{
    m_loadTimeout.stop();
    setLoading(false);
    report(QVariantMap{{QStringLiteral("Loaded"), QStringLiteral("YES")}});
}

void TovuSurveyViewModel::pageFailed(const QString &description)
{
    m_loadTimeout.stop();
    print(QStringLiteral("Failed to load web page: ") + description);
}

void TovuSurveyViewModel::report(const QVariantMap &response)
{
    if (m_surveyDelegate)
        m_surveyDelegate->handleSurveyLoaded(response);
}

void TovuSurveyViewModel::receiveScriptMessage(const QString &body)
{
    if (!m_surveyDelegate) {
        print(QStringLiteral(">>> User Delegate nil..."));
        return;
    }
    const TovuScriptMessage::Body message = TovuScriptMessage::read(body, TovuUserContentController::maxBodyLength);
    if (const auto *unreadable = std::get_if<TovuScriptMessage::Unreadable>(&message)) {
        print(QStringLiteral(">>> Unreadable message body: ") + unreadable->reason);
        return;
    }
    if (const auto *other = std::get_if<TovuScriptMessage::NotDictionary>(&message)) {
        print(QStringLiteral(">>> Unexpected message body: ") + other->printed);
        return;
    }
    const auto &dictionary = std::get<QVariantMap>(message);
    print(QStringLiteral(">>> User Response = \n ") + TovuScriptMessage::printed(dictionary));
    const QVariant type = dictionary.value(QStringLiteral("type"));
    if (type.typeId() == QMetaType::QString && type.toString() == m_surveyLoaded)
        report(dictionary);
}

bool TovuSurveyViewModel::acceptNavigation(const QUrl &url, bool linkActivated)
{
    if (!linkActivated || url.isEmpty())
        return true;
    // Only web addresses leave the app; any other scheme is simply not followed.
    urlOpener()->openIfValid(url);
    return false;
}

void TovuSurveyViewModel::closeTapped()
{
    if (m_closeButtonVisible) {
        m_closeButtonVisible = false;
        Q_EMIT closeButtonVisibleChanged();
    }
    Q_EMIT closeRequested();
}
