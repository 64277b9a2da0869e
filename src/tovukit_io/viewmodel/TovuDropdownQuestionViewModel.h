#pragma once

#include <tovukit_io/viewmodel/TovuQuestionViewModel.h>

/// A dropdown page: a closed selector that opens an in-place list; choosing an
/// option closes the list, shows it in the selector and reveals the action
/// ("Next →", whatever the position of the question), which reports it.
///
/// Before a choice the action is hidden, so an optional dropdown is left through
/// Skip; submitting without a choice anyway refuses a required question ("Please
/// select an option.") and ignores an optional one.
class TovuDropdownQuestionViewModel : public TovuQuestionViewModel
{
    Q_OBJECT
    Q_PROPERTY(bool isExpanded READ isExpanded NOTIFY expandedChanged)
    /// The chosen option's index, -1 before the first choice.
    Q_PROPERTY(int selectedIndex READ selectedIndex NOTIFY selectedIndexChanged)
    /// The chosen option's text, else the question's placeholder, else "Select an option".
    Q_PROPERTY(QString selectorTitle READ selectorTitle NOTIFY selectedIndexChanged)
    Q_PROPERTY(bool hasSelection READ hasSelection NOTIFY selectedIndexChanged)

public:
    explicit TovuDropdownQuestionViewModel(std::optional<TovuQuestion> question, QObject *parent = nullptr);

    bool isExpanded() const { return m_expanded; }
    int selectedIndex() const { return m_selectedIndex; }
    bool hasSelection() const { return m_selectedIndex >= 0; }
    std::optional<TovuChoice> selectedOption() const;
    QString selectorTitle() const;

    /// Opens or closes the list.
    Q_INVOKABLE void toggleExpanded();
    /// Chooses the option at `index`, closes the list and reveals the action; an
    /// index outside the options is ignored.
    Q_INVOKABLE void chooseOption(int index);

Q_SIGNALS:
    void expandedChanged();
    void selectedIndexChanged();

protected:
    void submitQuestion(const TovuQuestion &question) override;

private:
    void setExpanded(bool expanded);

    bool m_expanded = false;
    int m_selectedIndex = -1;
};
