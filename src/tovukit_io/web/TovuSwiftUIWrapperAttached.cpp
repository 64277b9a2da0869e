#include <tovukit_io/web/TovuSwiftUIWrapperAttached.h>

#include <tovukit_io/web/TovuLowestResponseRequest.h>
#include <tovukit_io/web/TovuSurveyView.h>
#include <tovukit_io/web/TovuSwiftUIWrapper.h>

#include <QGuiApplication>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

TovuSwiftUIWrapperAttached::TovuSwiftUIWrapperAttached(QObject *attachee)
    : QObject(attachee)
{ }

QQuickWindow *TovuSwiftUIWrapperAttached::keyWindow() const
{
    if (auto *item = qobject_cast<QQuickItem *>(parent()); item && item->window())
        return item->window();
    if (auto *window = qobject_cast<QQuickWindow *>(parent()))
        return window;
    if (auto *focused = qobject_cast<QQuickWindow *>(QGuiApplication::focusWindow()))
        return focused;
    for (QWindow *window : QGuiApplication::topLevelWindows()) {
        if (auto *quick = qobject_cast<QQuickWindow *>(window))
            return quick;
    }
    return nullptr;
}

QObject *TovuSwiftUIWrapperAttached::presentFullScreenSurvey(const QString &surveyURL, QObject *delegate)
{
    return TovuSwiftUIWrapper::presentOver(keyWindow(), qmlEngine(parent()), surveyURL, delegate);
}

void TovuSwiftUIWrapperAttached::loadLowestResponseSurvey(const QStringList &from, const QString &apiKey,
                                                          QObject *delegate)
{
    std::vector<std::string> ids;
    for (const QString &id : from)
        ids.push_back(id.toStdString());
    std::optional<std::string> key;
    if (!apiKey.isNull())
        key = apiKey.toStdString();
    TovuLowestResponseRequest::fetchAndShow(
        std::move(ids), key, this,
        [this, delegate = QPointer(delegate)](const QString &url) { presentFullScreenSurvey(url, delegate); });
}

void TovuSwiftUIWrapperAttached::preWarmSurvey()
{
    TovuSurveyView::preWarmSurvey();
}
