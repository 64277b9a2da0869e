#pragma once

#include <QVariantMap>

/// What a host hears from a web survey: that its page has loaded.
///
/// handleSurveyLoaded() receives either {"Loaded": "YES"} when the page has
/// finished loading, or the page's own {"type": "surveyLoaded", …} message,
/// whole. It is called on the GUI thread.
///
/// \code
/// class Host : public QWidget, public TovuSurveyDelegate
/// {
///     void handleSurveyLoaded(const QVariantMap &response) override { qDebug() << response; }
/// };
/// TovuSurveyView::loadFullscreenSurvey(this, this, QStringLiteral("https://…/web/1234"));
/// \endcode
///
/// The delegate is not owned: it must outlive the views it is given to, or be
/// cleared from them first. A delegate that is also a QObject is dropped by the
/// class operations of TovuSurveyView once it is destroyed.
class TovuSurveyDelegate
{
public:
    virtual ~TovuSurveyDelegate() = default;

    virtual void handleSurveyLoaded(const QVariantMap &response) = 0;
};
