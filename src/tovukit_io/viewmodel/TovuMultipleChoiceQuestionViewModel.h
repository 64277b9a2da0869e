#pragma once

#include <tovukit_io/viewmodel/TovuQuestionViewModel.h>

#include <set>
#include <string>

/// A multiple-choice page: options tick and untick independently, keyed by their
/// ids (two options sharing an id tick together). The ticked ids are reported,
/// in option order, when the action is tapped.
///
/// A required question with nothing ticked is refused ("Please select at least
/// one option."); an optional one reports an answer without values.
class TovuMultipleChoiceQuestionViewModel : public TovuQuestionViewModel
{
    Q_OBJECT
    /// The question's subtitle, else "Select all that apply".
    Q_PROPERTY(QString hint READ hint CONSTANT)
    /// The ticked ids, in option order.
    Q_PROPERTY(QStringList selectedIds READ selectedIds NOTIFY selectedIdsChanged)

public:
    explicit TovuMultipleChoiceQuestionViewModel(std::optional<TovuQuestion> question, bool isLastQuestion,
                                                 QObject *parent = nullptr);

    QString hint() const;
    QStringList selectedIds() const;
    Q_INVOKABLE bool isSelected(const QString &optionId) const;

    /// Ticks or unticks the option with `optionId` and hides the validation message;
    /// an id no option has is ignored.
    Q_INVOKABLE void toggleOption(const QString &optionId);

Q_SIGNALS:
    void selectedIdsChanged();

protected:
    void submitQuestion(const TovuQuestion &question) override;

private:
    std::vector<std::string> tickedInOptionOrder() const;

    std::set<std::string> m_selectedIds;
};
