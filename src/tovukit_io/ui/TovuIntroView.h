#pragma once

#include <tovukit_io/model/TovuSurvey.h>

#include <QWidget>

#include <functional>

class QLabel;
class TovuButton;

/// The survey's intro page: its text and a start button. The owner decides
/// what starting means (`onStart`); the page never moves on by itself.
///
/// Colours are resolved again whenever the palette changes; the start button's
/// default accent is the Highlight the host window set, inherited once the page
/// is shown in a sheet over that host.
class TovuIntroView : public QWidget
{
    Q_OBJECT

public:
    explicit TovuIntroView(TovuSurveyPage page, QWidget *parent = nullptr);

    QLabel *contentLabel() const { return m_contentLabel; }
    TovuButton *startButton() const { return m_startButton; }
    const TovuSurveyPage &page() const { return m_page; }

    /// Told on every tap of the start button.
    std::function<void()> onStart;

protected:
    void changeEvent(QEvent *event) override;

private:
    void restyle();
    void startTapped();

    TovuSurveyPage m_page;
    QLabel *m_contentLabel = nullptr;
    TovuButton *m_startButton = nullptr;
};
