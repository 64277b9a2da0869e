#pragma once

#include <tovukit_io/model/TovuAnswer.h>

#include <QColor>
#include <QWidget>

#include <functional>

class QLabel;
class TovuButton;
class TovuQuestionViewModel;

/// What every question page of the widget front end shares: it owns its view
/// model, hands the model's answers to `onAnswer`, shows the model's validation
/// message and action button, shakes when the model refuses input, and styles
/// itself again whenever the palette changes, so colours that no theme sets follow
/// the light or dark appearance, and the default accent is the one its host
/// window sets.
class TovuQuestionView : public QWidget
{
    Q_OBJECT

public:
    ~TovuQuestionView() override;

    /// Told with each answer the page reports.
    std::function<void(const TovuAnswer &)> onAnswer;

protected:
    /// Takes ownership of `model`.
    TovuQuestionView(TovuQuestionViewModel *model, QWidget *parent);

    /// Shows the model's validation message in `validationLabel`, its action title and
    /// visibility on `actionButton`, whose taps submit, and shakes `shakeTarget` (the
    /// page when null) when the model asks.
    void bindModel(QLabel *validationLabel, TovuButton *actionButton, QWidget *shakeTarget = nullptr);
    /// The accent for this page: the theme's, else its host window's, else the platform blue.
    QColor accent() const;
    /// Sets every colour from the model's state, the theme and the platform.
    virtual void restyle() = 0;
    /// Ends the subclass's constructor: styles the page, and from now on again on
    /// every palette change.
    void finishBuilding();

    void changeEvent(QEvent *event) override;

private:
    TovuQuestionViewModel *m_baseModel = nullptr;
    bool m_built = false;
};
