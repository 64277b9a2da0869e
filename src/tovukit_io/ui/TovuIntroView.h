#pragma once

#include <tovukit_io/model/TovuSurvey.h>

#include <QWidget>

#include <functional>

class QLabel;
class TovuButton;
class TovuIntroViewModel;

/// The survey's intro page: its text and a start button, as its view model
/// (`viewModel()`) gives them. The owner decides what starting means
/// (`onStart`); the page never moves on by itself.
///
/// Colours are resolved again whenever the palette changes; the start button's
/// default accent is the Highlight the host window set, inherited once the page
/// is shown in a sheet over that host.
class TovuIntroView : public QWidget
{
    Q_OBJECT

public:
    explicit TovuIntroView(TovuSurveyPage page, QWidget *parent = nullptr);
    ~TovuIntroView() override;

    QLabel *contentLabel() const { return m_contentLabel; }
    TovuButton *startButton() const { return m_startButton; }
    const TovuSurveyPage &page() const;
    TovuIntroViewModel *viewModel() const { return m_model; }

    /// Told on every tap of the start button.
    std::function<void()> onStart;

protected:
    void changeEvent(QEvent *event) override;

private:
    void restyle();

    TovuIntroViewModel *m_model = nullptr;
    QLabel *m_contentLabel = nullptr;
    TovuButton *m_startButton = nullptr;
};
