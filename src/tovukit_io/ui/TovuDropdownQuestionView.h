#pragma once

#include <tovukit_io/model/TovuSurvey.h>
#include <tovukit_io/ui/TovuQuestionView.h>
#include <tovukit_io/viewmodel/TovuDropdownQuestionViewModel.h>

#include <QList>

#include <map>
#include <optional>

class QVBoxLayout;
class TovuBox;
class TovuChevron;
class TovuHairline;

/// A dropdown question: a selector that opens an in-place list of the options,
/// pushing what follows down. Choosing closes the list, shows the choice in the
/// selector and reveals "Next →", which reports it.
///
/// An optional dropdown left unchosen is left through Skip: the button only
/// appears once something is chosen.
class TovuDropdownQuestionView : public TovuQuestionView
{
    Q_OBJECT

public:
    explicit TovuDropdownQuestionView(TovuQuestion question, QWidget *parent = nullptr);
    /// The same page; the button reads "Next →" on the last question too.
    TovuDropdownQuestionView(TovuQuestion question, bool isLastQuestion, QWidget *parent = nullptr);
    ~TovuDropdownQuestionView() override;

    QLabel *titleLabel() const { return m_titleLabel; }
    /// The closed selector; its chevron (tag 99) is `chevron()`.
    TovuButton *dropdownButton() const { return m_dropdownButton; }
    TovuChevron *chevron() const { return m_chevron; }
    /// The list panel, hidden while the list is closed.
    TovuBox *optionsContainer() const { return m_optionsContainer; }
    QVBoxLayout *optionsStack() const { return m_optionsStack; }
    QLabel *validationLabel() const { return m_validationLabel; }
    TovuButton *nextButton() const { return m_nextButton; }
    /// The list's buttons in option order.
    const QList<TovuButton *> &optionButtons() const { return m_optionButtons; }
    /// Which option each list button stands for.
    const std::map<const TovuButton *, TovuChoice> &optionMap() const { return m_optionMap; }
    const std::optional<TovuQuestion> &question() const;
    std::optional<TovuChoice> selectedOption() const;
    bool isExpanded() const;
    TovuDropdownQuestionViewModel *viewModel() const { return m_model; }

    /// What a tap on the selector does: opens or closes the list.
    void toggleDropdown();
    /// What a tap on a list button does: chooses its option; a button not in the list is ignored.
    void optionTapped(TovuButton *button);
    /// What a tap on "Next →" does: reports the choice.
    void nextTapped();

protected:
    void restyle() override;

private:
    TovuDropdownQuestionView(TovuDropdownQuestionViewModel *model, QWidget *parent);
    void buildSelector();
    void buildList();
    TovuHairline *separator();
    void showExpansion();

    TovuDropdownQuestionViewModel *m_model = nullptr;
    QLabel *m_titleLabel = nullptr;
    TovuButton *m_dropdownButton = nullptr;
    TovuChevron *m_chevron = nullptr;
    TovuBox *m_optionsContainer = nullptr;
    QVBoxLayout *m_optionsStack = nullptr;
    QLabel *m_validationLabel = nullptr;
    TovuButton *m_nextButton = nullptr;
    QList<TovuButton *> m_optionButtons;
    std::map<const TovuButton *, TovuChoice> m_optionMap;
};
