#pragma once

#include <tovukit_io/viewmodel/TovuAppTheme.h>
#include <tovukit_io/web/TovuSurveyDelegate.h>

#include <QPointer>
#include <QQuickItem>
#include <QVariantMap>
#include <QtQml/qqml.h>

#include <optional>

class QQmlEngine;
class QQmlWebChannel;
class TovuSurveyViewModel;
class TovuSwiftUIWrapperAttached;
class TovuUserContentController;

/// The web survey as a Qt Quick item, `TovuSwiftUIWrapper` in the QML module
/// `TovuKit.Web`; linking tovukit::tovukit_web is all it takes to import it (no
/// registration call, no import path). It loads `surveyURL` when it is made and
/// again whenever the address changes, reports load events to `delegate` (any
/// object with a `handleSurveyLoaded(response)` function) and through the
/// signal `surveyLoaded(response)`, and sets `isSurveyVisible` to false when
/// its close button is tapped.
///
/// \qml
/// import TovuKit.Web
///
/// TovuSwiftUIWrapper {
///     anchors.fill: parent
///     surveyURL: "https://…/web/1234"
///     isSurveyVisible: host.showSurvey
///     onIsSurveyVisibleChanged: host.showSurvey = isSurveyVisible
///     onSurveyLoaded: (response) => console.log(JSON.stringify(response))
/// }
/// \endqml
///
/// The class operations are attached to the type, callable from any item:
/// `TovuSwiftUIWrapper.presentFullScreenSurvey(url, delegate)`,
/// `TovuSwiftUIWrapper.loadLowestResponseSurvey(ids, apiKey, delegate)` and
/// `TovuSwiftUIWrapper.preWarmSurvey()`.
///
/// The application must call QtWebEngineQuick::initialize() before it makes
/// its QGuiApplication.
class TovuSwiftUIWrapper : public QQuickItem, public TovuSurveyDelegate
{
    Q_OBJECT
    Q_PROPERTY(QString surveyURL READ surveyURL WRITE setSurveyURL NOTIFY surveyURLChanged)
    Q_PROPERTY(QObject *delegate READ delegate WRITE setDelegate NOTIFY delegateChanged)
    Q_PROPERTY(bool isSurveyVisible READ isSurveyVisible WRITE setSurveyVisible NOTIFY isSurveyVisibleChanged)
    Q_PROPERTY(QVariantMap theme READ themeMap WRITE setThemeMap NOTIFY themeChanged)
    Q_PROPERTY(TovuSurveyViewModel *viewModel READ viewModel CONSTANT)
    QML_ELEMENT
    QML_ATTACHED(TovuSwiftUIWrapperAttached)

public:
    static TovuSwiftUIWrapperAttached *qmlAttachedProperties(QObject *object);

    explicit TovuSwiftUIWrapper(QQuickItem *parent = nullptr);
    ~TovuSwiftUIWrapper() override;

    QString surveyURL() const { return m_surveyURL; }
    void setSurveyURL(const QString &url);
    QObject *delegate() const { return m_delegate; }
    void setDelegate(QObject *delegate);
    bool isSurveyVisible() const { return m_isSurveyVisible; }
    void setSurveyVisible(bool visible);
    std::optional<TovuAppTheme> theme() const { return m_theme; }
    void setTheme(std::optional<TovuAppTheme> theme);
    QVariantMap themeMap() const;
    void setThemeMap(const QVariantMap &theme);
    TovuSurveyViewModel *viewModel() const { return m_viewModel; }

    /// For C++ hosts: a delegate that is not a QML object. Not owned.
    void setSurveyDelegate(TovuSurveyDelegate *delegate) { m_surveyDelegate = delegate; }

    /// Starts the spinner and loads `surveyURL` again.
    Q_INVOKABLE void reload();

    /// A wrapper over the whole of `window`'s content, removed when closed.
    static TovuSwiftUIWrapper *presentOver(QQuickWindow *window, QQmlEngine *engine, const QString &surveyURL,
                                           QObject *delegate);

    void handleSurveyLoaded(const QVariantMap &response) override;

Q_SIGNALS:
    void surveyURLChanged();
    void delegateChanged();
    void isSurveyVisibleChanged();
    void themeChanged();
    void surveyLoaded(const QVariantMap &response);

protected:
    void componentComplete() override;

private:
    void build(QQmlEngine *engine);
    void applyTheme();
    void close();

    QString m_surveyURL;
    QPointer<QObject> m_delegate;
    TovuSurveyDelegate *m_surveyDelegate = nullptr;
    bool m_isSurveyVisible = true;
    bool m_removeOnClose = false;
    std::optional<TovuAppTheme> m_theme;
    TovuSurveyViewModel *m_viewModel;
    TovuUserContentController *m_surveyResponseHandler;
    QQmlWebChannel *m_channel;
    QPointer<QQuickItem> m_content;
};
