#pragma once

#include <tovukit_io/model/TovuAnswer.h>

#include <QColor>
#include <QWidget>

#include <functional>

class QLabel;
class QVBoxLayout;
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

    struct Footer {
        QLabel *validationLabel = nullptr; ///< none for a page that never refuses input
        TovuButton *actionButton = nullptr;
    };
    /// How a page shows that its model refused the input.
    enum class Refusal {
        shakePage, ///< the validation message, and the whole page shakes
        shakeMessage, ///< the validation message, which shakes alone
        never, ///< the page always accepts: no message at all
    };
    /// Adds the model's validation message (unless the page never refuses) and its action
    /// button (whose taps submit) to `stack` and keeps them in step with the model.
    Footer addFooter(QVBoxLayout *stack, Refusal refusal = Refusal::shakePage);
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
