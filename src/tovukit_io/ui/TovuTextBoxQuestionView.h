#pragma once

#include <tovukit_io/model/TovuSurvey.h>
#include <tovukit_io/ui/TovuQuestionView.h>
#include <tovukit_io/viewmodel/TovuTextBoxQuestionViewModel.h>

#include <QList>

#include <optional>

class QVBoxLayout;

class TovuTextField;

/// A text question: one field for a single text box, or one labelled field per
/// option (Name, Email and Comment when there are none) for a multiple text box,
/// and a "Submit" button that reports every field as typed.
///
/// A required question needs one field with more than blanks; otherwise "Please
/// enter an answer." shows and the first field turns red until it gains focus.
class TovuTextBoxQuestionView : public TovuQuestionView
{
    Q_OBJECT

public:
    explicit TovuTextBoxQuestionView(TovuQuestion question, QWidget *parent = nullptr);
    /// The same page; the button reads "Submit" on every question.
    TovuTextBoxQuestionView(TovuQuestion question, bool isLastQuestion, QWidget *parent = nullptr);
    ~TovuTextBoxQuestionView() override;

    QLabel *titleLabel() const { return m_titleLabel; }
    QVBoxLayout *inputsStack() const { return m_inputsStack; }
    QLabel *validationLabel() const { return m_validationLabel; }
    TovuButton *submitButton() const { return m_submitButton; }
    /// The fields in display order.
    const QList<TovuTextField *> &textFields() const { return m_textFields; }
    /// The label over each field of a multiple text box, in field order.
    const QList<QLabel *> &fieldLabels() const { return m_fieldLabels; }
    const std::optional<TovuQuestion> &question() const;
    TovuTextBoxQuestionViewModel *viewModel() const { return m_model; }

    /// What a tap on "Submit" does: reports every field, or refuses a required question.
    void submitTapped();
    /// `field` began editing: the message hides, and the field's red mark goes.
    void fieldFocused(TovuTextField *field);

protected:
    void restyle() override;

private:
    TovuTextBoxQuestionView(TovuTextBoxQuestionViewModel *model, QWidget *parent);
    TovuTextField *addField(int index);

    TovuTextBoxQuestionViewModel *m_model = nullptr;
    QLabel *m_titleLabel = nullptr;
    QVBoxLayout *m_inputsStack = nullptr;
    QLabel *m_validationLabel = nullptr;
    TovuButton *m_submitButton = nullptr;
    QList<TovuTextField *> m_textFields;
    QList<QLabel *> m_fieldLabels;
};
