#pragma once

#include <tovukit_io/viewmodel/TovuQuestionViewModel.h>

#include <vector>

/// A text page: one field for a single text box, or one labelled field per option
/// (Name, Email and Comment when the question has no options) for a multiple text
/// box. Every field is reported, as typed, when "Submit" is tapped.
///
/// A required question passes as soon as any one field holds more than blanks;
/// otherwise it is refused ("Please enter an answer.") and the first field is
/// marked until it gains focus again. Row ids come from the options; fields
/// without one report a fresh random id on every submit.
class TovuTextBoxQuestionViewModel : public TovuQuestionViewModel
{
    Q_OBJECT
    /// True for every type but the single text box.
    Q_PROPERTY(bool isMultiple READ isMultiple CONSTANT)
    Q_PROPERTY(int fieldCount READ fieldCount CONSTANT)
    /// The label over each field; empty for a single text box, whose field has none.
    Q_PROPERTY(QStringList fieldLabels READ fieldLabels CONSTANT)
    Q_PROPERTY(QStringList fieldPlaceholders READ fieldPlaceholders CONSTANT)
    Q_PROPERTY(QStringList fieldTexts READ fieldTexts NOTIFY fieldTextsChanged)
    /// The field marked by a refused submit, or -1.
    Q_PROPERTY(int invalidFieldIndex READ invalidFieldIndex NOTIFY invalidFieldIndexChanged)

public:
    struct Field {
        QString label;
        QString placeholder;
        /// Takes an e-mail address: the label contains "email", in any case.
        bool isEmail = false;
    };

    explicit TovuTextBoxQuestionViewModel(std::optional<TovuQuestion> question, QObject *parent = nullptr);

    bool isMultiple() const;
    const std::vector<Field> &fields() const { return m_fields; }
    int fieldCount() const { return static_cast<int>(m_fields.size()); }
    QStringList fieldLabels() const;
    QStringList fieldPlaceholders() const;
    QStringList fieldTexts() const { return m_texts; }
    int invalidFieldIndex() const { return m_invalidField; }
    Q_INVOKABLE bool isEmailField(int index) const;

    /// The text of field `index`, exactly as typed.
    Q_INVOKABLE void setFieldText(int index, const QString &text);
    /// Field `index` gained focus: the validation message hides, and the field's mark goes.
    Q_INVOKABLE void fieldFocused(int index);

Q_SIGNALS:
    void fieldTextsChanged();
    void invalidFieldIndexChanged();

protected:
    void submitQuestion(const TovuQuestion &question) override;

private:
    void buildFields();
    void setInvalidField(int index);
    bool hasNonBlankField() const;

    std::vector<Field> m_fields;
    QStringList m_texts;
    int m_invalidField = -1;
};
