#pragma once

#include <QObject>
#include <QString>

#include <functional>

/// The one native object a survey page reaches, published on the page's web
/// channel as "surveyResponse". It has a single invokable method and nothing
/// else: no properties, no signals of its own, no other slots.
///
/// The page never sees this object directly. The injected scripts
/// (TovuUserContentController) give the page
/// `window.webkit.messageHandlers.surveyResponse.postMessage(body)`, turn the
/// body into JSON text and hand that text over here.
class TovuSurveyBridge : public QObject
{
    Q_OBJECT

public:
    using Receiver = std::function<void(const QString &body)>;

    explicit TovuSurveyBridge(Receiver receiver, QObject *parent = nullptr);

    /// The body as the page posted it, as JSON text (or as the page's own text
    /// when it could not be written as JSON).
    Q_INVOKABLE void postMessage(const QString &body);

private:
    Receiver m_receiver;
};
