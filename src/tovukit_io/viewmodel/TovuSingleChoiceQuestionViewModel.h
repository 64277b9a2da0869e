#pragma once

#include <tovukit_io/viewmodel/TovuQuestionViewModel.h>

/// A single-choice page: one option at a time, reported when the action is
/// tapped, never on the tap of an option.
///
/// Submitting without a choice refuses a required question ("Please select an
/// option.") and does nothing at all for an optional one: the respondent
/// answers or skips.
///
/// \code
/// TovuSingleChoiceQuestionViewModel model(question, false);
/// model.onAnswer = [](const TovuAnswer &answer) { ... };
/// model.selectOption(1);
/// model.submit(); // {questionId, [{rowId: options[1].id}]}
/// \endcode
class TovuSingleChoiceQuestionViewModel : public TovuQuestionViewModel
{
    Q_OBJECT
    /// The chosen option's index, -1 before the first choice.
    Q_PROPERTY(int selectedIndex READ selectedIndex NOTIFY selectedIndexChanged)

public:
    explicit TovuSingleChoiceQuestionViewModel(std::optional<TovuQuestion> question, bool isLastQuestion,
                                               QObject *parent = nullptr);

    int selectedIndex() const { return m_selectedIndex; }
    std::optional<TovuChoice> selectedOption() const;

    /// Chooses the option at `index` (again, if it is already chosen) and hides the
    /// validation message; an index outside the options is ignored.
    Q_INVOKABLE void selectOption(int index);

Q_SIGNALS:
    /// Also emitted when the chosen option is chosen again.
    void selectedIndexChanged();

protected:
    void submitQuestion(const TovuQuestion &question) override;

private:
    int m_selectedIndex = -1;
};
