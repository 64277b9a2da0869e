#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQmlIntegration/qqmlintegration.h>

class QQuickWindow;

/// The class operations of TovuSwiftUIWrapper, attached to any QML object:
/// `TovuSwiftUIWrapper.presentFullScreenSurvey(url, delegate)`. The survey goes
/// over the window of the item they are called from (else the window with the
/// focus, else the first Qt Quick window).
class TovuSwiftUIWrapperAttached : public QObject
{
    Q_OBJECT
    QML_ANONYMOUS

public:
    explicit TovuSwiftUIWrapperAttached(QObject *attachee);

    /// Returns the wrapper shown, or null when there is no window to show it in.
    Q_INVOKABLE QObject *presentFullScreenSurvey(const QString &surveyURL, QObject *delegate = nullptr);
    Q_INVOKABLE void loadLowestResponseSurvey(const QStringList &from, const QString &apiKey,
                                              QObject *delegate = nullptr);
    Q_INVOKABLE void preWarmSurvey();

private:
    QQuickWindow *keyWindow() const;
};
