#pragma once

#include <tovukit_io/model/TovuSurvey.h>

#include <QObject>
#include <QString>

#include <functional>

/// What the survey's intro page shows and does: its text (plain text, empty when the
/// page has none) and the start button's title. Starting is the owner's to decide
/// (`onStart`); the page never moves on by itself.
///
/// \code
/// TovuIntroViewModel model(*survey.introPage);
/// model.onStart = [&] { showFirstQuestion(); };
/// // QML: Button { text: intro.buttonTitle; onClicked: intro.start() }
/// \endcode
class TovuIntroViewModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString content READ content CONSTANT)
    /// Without text the page shows only the button.
    Q_PROPERTY(bool hasContent READ hasContent CONSTANT)
    /// The page's button text, else "Let's get started".
    Q_PROPERTY(QString buttonTitle READ buttonTitle CONSTANT)

public:
    explicit TovuIntroViewModel(TovuSurveyPage page, QObject *parent = nullptr);

    const TovuSurveyPage &page() const { return m_page; }
    QString content() const;
    bool hasContent() const;
    QString buttonTitle() const;

    /// Tells `onStart`, on every tap of the start button.
    Q_INVOKABLE void start();

    std::function<void()> onStart;

private:
    TovuSurveyPage m_page;
};
