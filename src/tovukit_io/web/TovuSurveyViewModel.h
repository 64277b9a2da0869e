#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>
#include <QUrl>
#include <QVariantMap>
#include <QtQmlIntegration/qqmlintegration.h>

class TovuSurveyDelegate;
class TovuUrlOpener;

/// What a web survey view does, without the web view: the spinner and close
/// button state, the load report, the script messages of the page, the link
/// policy and every console line. TovuSurveyView (Qt Widgets) and the Qt Quick
/// wrapper forward their web view's events here and show its state.
class TovuSurveyViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString surveyLoaded READ surveyLoaded CONSTANT)
    Q_PROPERTY(QString surveyCompleted READ surveyCompleted CONSTANT)
    Q_PROPERTY(bool getSurveyLoadedResponse READ getSurveyLoadedResponse WRITE setGetSurveyLoadedResponse NOTIFY
                   getSurveyLoadedResponseChanged)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY loadingChanged)
    Q_PROPERTY(bool isCloseButtonVisible READ isCloseButtonVisible NOTIFY closeButtonVisibleChanged)
    QML_ELEMENT
    QML_UNCREATABLE("Each TovuSwiftUIWrapper has its own")

public:
    /// A page that has not finished loading by then counts as failed.
    static constexpr int loadTimeoutMs = 60000;

    explicit TovuSurveyViewModel(QObject *parent = nullptr);

    /// The message type forwarded to the delegate: "surveyLoaded".
    QString surveyLoaded() const { return m_surveyLoaded; }
    /// The message type of completion, "surveyCompleted": known, but only printed.
    QString surveyCompleted() const { return m_surveyCompleted; }

    bool getSurveyLoadedResponse() const { return m_getSurveyLoadedResponse; }
    void setGetSurveyLoadedResponse(bool value);

    /// Not owned; nullptr disables every report.
    TovuSurveyDelegate *surveyDelegate() const { return m_surveyDelegate; }
    void setSurveyDelegate(TovuSurveyDelegate *delegate) { m_surveyDelegate = delegate; }

    /// Where clicked links go; the default opener unless set. Not owned.
    TovuUrlOpener *urlOpener() const;
    void setUrlOpener(TovuUrlOpener *opener) { m_urlOpener = opener; }

    bool isLoading() const { return m_loading; }
    bool isCloseButtonVisible() const { return m_closeButtonVisible; }

    /// Starts the spinner and gives the address to load: empty when `urlText`
    /// is empty or not an absolute URL, and then nothing loads (the spinner
    /// keeps turning).
    Q_INVOKABLE QUrl beginLoad(const QString &urlText);
    /// The page finished: the spinner stops, the delegate hears {"Loaded": "YES"}.
    Q_INVOKABLE void pageFinished();
    /// The page failed to load: one console line.
    Q_INVOKABLE void pageFailed(const QString &description);
    /// A message the page posted, as the bridge carries it.
    Q_INVOKABLE void receiveScriptMessage(const QString &body);
    /// Whether the web view may follow a navigation. A link the user activated
    /// opens in the system browser instead (http and https only) and the survey stays.
    Q_INVOKABLE bool acceptNavigation(const QUrl &url, bool linkActivated);
    /// The close button: it hides, and the view empties and dismisses itself.
    Q_INVOKABLE void closeTapped();

Q_SIGNALS:
    void getSurveyLoadedResponseChanged();
    void loadingChanged();
    void closeButtonVisibleChanged();
    /// The view should empty its page and leave the screen.
    void closeRequested();
    /// The load took longer than loadTimeoutMs: the view should stop it.
    void loadTimedOut();

private:
    void setLoading(bool loading);
    void report(const QVariantMap &response);

    const QString m_surveyLoaded = QStringLiteral("surveyLoaded");
    const QString m_surveyCompleted = QStringLiteral("surveyCompleted");
    bool m_getSurveyLoadedResponse = false;
    bool m_loading = false;
    bool m_closeButtonVisible = true;
    TovuSurveyDelegate *m_surveyDelegate = nullptr;
    TovuUrlOpener *m_urlOpener = nullptr;
    QTimer m_loadTimeout;
};
