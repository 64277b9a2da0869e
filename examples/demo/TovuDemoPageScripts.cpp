// The page scripts: what the demo answers on each page type, as steps the
// player runs, and the answer it remembers for each.

#include "TovuDemoPagePlayer.h"

#include "TovuDemoInput.h"
#include "TovuDemoPng.h"

#include <tovukit_io/ui/TovuDropdownQuestionView.h>
#include <tovukit_io/ui/TovuIntroView.h>
#include <tovukit_io/ui/TovuMultiNPSQuestionView.h>
#include <tovukit_io/ui/TovuMultiRatingQuestionView.h>
#include <tovukit_io/ui/TovuMultipleChoiceQuestionView.h>
#include <tovukit_io/ui/TovuNPSQuestionView.h>
#include <tovukit_io/ui/TovuRatingQuestionView.h>
#include <tovukit_io/ui/TovuSingleChoiceQuestionView.h>
#include <tovukit_io/ui/TovuTextBoxQuestionView.h>
#include <tovukit_io/ui/TovuThankYouView.h>
#include <tovukit_io/ui/TovuToasterView.h>
#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuTextArea.h>
#include <tovukit_io/ui/kit/TovuTextField.h>
#include <tovukit_io/viewmodel/TovuNPSQuestionViewModel.h>

#include <QDir>
#include <QLabel>
#include <QLayout>
#include <QScrollArea>

#include <algorithm>
#include <array>

namespace {

QString shortText(const QString &text, qsizetype max = 52)
{
    QString simple = text.simplified();
    if (simple.size() > max)
        simple = simple.left(max - 1).trimmed() + QChar(0x2026);
    return simple;
}

QString shortText(const std::string &text, qsizetype max = 52)
{
    return shortText(QString::fromStdString(text), max);
}

const std::vector<TovuChoice> &optionsOf(const TovuQuestion &question)
{
    static const std::vector<TovuChoice> none;
    return question.options ? *question.options : none;
}

// The column a scale or matrix answer reports, as the library works it out:
// the column at that position, else the value itself.
std::string columnId(const TovuQuestion &question, std::size_t index, int value)
{
    if (question.columns && index < question.columns->size())
        return (*question.columns)[index].id;
    return std::to_string(value);
}

std::string columnText(const TovuQuestion &question, std::size_t index)
{
    if (question.columns && index < question.columns->size())
        return (*question.columns)[index].text;
    return {};
}

// A scale's row: its first option, or one the library makes up (empty: any).
std::string scaleRowId(const TovuQuestion &question)
{
    return optionsOf(question).empty() ? std::string() : optionsOf(question).front().id;
}

// Something a respondent would type into a field labelled `label` under a
// question titled `title`.
QString plausibleText(const QString &label, const std::optional<std::string> &placeholder, const std::string &title)
{
    const QString lower = label.toLower();
    if (lower.contains(u"mail"))
        return QStringLiteral("ana.souza@example.com");
    if (lower.contains(u"phone"))
        return QStringLiteral("+49 30 1234 5678");
    if (lower.contains(u"name"))
        return QStringLiteral("Ana Souza");
    if (lower.contains(u"time") || lower.contains(u"when"))
        return QStringLiteral("Weekday evenings");
    // A placeholder that gives an example is what a respondent would write.
    const QString hint = placeholder ? QString::fromStdString(*placeholder).trimmed() : QString();
    if (hint.startsWith(u"e.g. ", Qt::CaseInsensitive) && hint.size() > 8) {
        QString example = hint.mid(5).trimmed();
        while (example.endsWith(QChar(0x2026)) || example.endsWith(u'.'))
            example.chop(1);
        return example + u'.';
    }
    if (lower.contains(u"comment") || lower.contains(u"else"))
        return QStringLiteral("Happy to help, thanks for asking!");
    const QString question = QString::fromStdString(title).toLower();
    if (question.contains(u"before") || question.contains(u"instead"))
        return QStringLiteral("Pen and paper, mostly.");
    if (question.contains(u"feature"))
        return QStringLiteral("Sharing with family members.");
    for (const char16_t *word : {u"better", u"improve", u"easier", u"wrong", u"add"}) {
        if (question.contains(QStringView(word)))
            return QStringLiteral("A short tour in the first few days would help.");
    }
    return QStringLiteral("All good so far, thank you.");
}

std::string joined(const std::vector<std::string> &parts, std::string_view separator = ", ")
{
    std::string text;
    for (const std::string &part : parts) {
        if (!text.empty())
            text += separator;
        text += part;
    }
    return text;
}

} // namespace

// -- what the scripts share -----------------------------------------------------------

template<typename View>
std::vector<TovuDemoPagePlayer::Step> TovuDemoPagePlayer::questionScript(View *page, QuestionScript<View> answer)
{
    if (!page->question())
        return stuck(QStringLiteral("reading the page's question"));
    const TovuQuestion question = *page->question();
    m_title = shortText(question.title);
    return (this->*answer)(page, question);
}

// Notes `given` as the page's answer, shown as its summary.
void TovuDemoPagePlayer::remember(TovuDemoGivenAnswer given)
{
    m_answer = QString::fromStdString(given.summary);
    m_given.push_back(std::move(given));
}

// Answers with the third option, or the last of `shown` when fewer: its index,
// or -1 when there is none to choose.
int TovuDemoPagePlayer::rememberOption(const TovuQuestion &question, qsizetype shown)
{
    const auto &options = optionsOf(question);
    const int choice = std::min(2, static_cast<int>(shown) - 1);
    if (choice < 0 || static_cast<std::size_t>(choice) >= options.size())
        return -1;
    const TovuChoice &option = options[static_cast<std::size_t>(choice)];
    remember({question.id, question.type, {{option.id, std::nullopt, std::nullopt}}, option.text});
    return choice;
}

// The page is answered: save it, then leave it with `button`.
void TovuDemoPagePlayer::shootThenClick(std::vector<Step> &steps, std::function<QWidget *()> button,
                                        const QString &what)
{
    steps.push_back(shootStep());
    steps.push_back(clickStep(std::move(button), what));
}

// Gives every pick, in order, as one answer whose summary joins their texts,
// then saves the page and leaves it with `button`.
std::vector<TovuDemoPagePlayer::Step> TovuDemoPagePlayer::answerWith(const TovuQuestion &question,
                                                                     std::vector<Pick> picks,
                                                                     std::function<QWidget *()> button,
                                                                     const QString &what, std::string_view separator)
{
    TovuDemoGivenAnswer given{question.id, question.type, {}, {}};
    std::vector<std::string> texts;
    std::vector<Step> steps;
    for (Pick &pick : picks) {
        given.values.push_back(std::move(pick.value));
        texts.push_back(std::move(pick.text));
        steps.push_back(std::move(pick.step));
    }
    given.summary = joined(texts, separator);
    remember(std::move(given));
    shootThenClick(steps, std::move(button), what);
    return steps;
}

std::vector<TovuDemoPagePlayer::Step> TovuDemoPagePlayer::script(QWidget *page)
{
    if (auto *view = qobject_cast<TovuIntroView *>(page))
        return introScript(view);
    if (auto *view = qobject_cast<TovuThankYouView *>(page))
        return thankYouScript(view);
    if (auto *view = qobject_cast<TovuSingleChoiceQuestionView *>(page))
        return questionScript(view, &TovuDemoPagePlayer::singleChoiceScript);
    if (auto *view = qobject_cast<TovuMultipleChoiceQuestionView *>(page))
        return questionScript(view, &TovuDemoPagePlayer::multipleChoiceScript);
    if (auto *view = qobject_cast<TovuDropdownQuestionView *>(page))
        return questionScript(view, &TovuDemoPagePlayer::dropdownScript);
    if (auto *view = qobject_cast<TovuTextBoxQuestionView *>(page))
        return questionScript(view, &TovuDemoPagePlayer::textBoxScript);
    if (auto *view = qobject_cast<TovuNPSQuestionView *>(page))
        return questionScript(view, &TovuDemoPagePlayer::npsScript);
    if (auto *view = qobject_cast<TovuMultiNPSQuestionView *>(page))
        return questionScript(view, &TovuDemoPagePlayer::multiNpsScript);
    if (auto *view = qobject_cast<TovuRatingQuestionView *>(page))
        return questionScript(view, &TovuDemoPagePlayer::ratingScript);
    if (auto *view = qobject_cast<TovuMultiRatingQuestionView *>(page))
        return questionScript(view, &TovuDemoPagePlayer::multiRatingScript);
    return stuck(QStringLiteral("answering a page of a kind the demo does not know"));
}

// -- one script per page type ---------------------------------------------------------

std::vector<TovuDemoPagePlayer::Step> TovuDemoPagePlayer::introScript(TovuIntroView *page)
{
    const QPointer view(page);
    m_title = shortText(page->page().content.value_or(""));
    m_answer = QStringLiteral("tapped \"%1\"").arg(page->startButton()->text());
    return {shootStep(), clickStep([view] { return view ? view->startButton() : nullptr; }, QStringLiteral("start"))};
}

std::vector<TovuDemoPagePlayer::Step> TovuDemoPagePlayer::thankYouScript(TovuThankYouView *page)
{
    const QPointer view(page);
    m_lastPage = true;
    m_title = shortText(page->titleLabel()->text());
    return {{[view] { return !view || view->entranceProgress() >= 1.0; }, QStringLiteral("the page settling")},
            shootStep()};
}

std::vector<TovuDemoPagePlayer::Step> TovuDemoPagePlayer::singleChoiceScript(TovuSingleChoiceQuestionView *page,
                                                                             const TovuQuestion &question)
{
    const QPointer view(page);
    const int choice = rememberOption(question, page->optionRows().size());
    if (choice < 0)
        return stuck(QStringLiteral("finding an option"));
    return {clickStep([view, choice] { return view ? view->optionRows().value(choice) : nullptr; },
                      QStringLiteral("an option")),
            shootStep(), clickStep([view] { return view ? view->nextButton() : nullptr; }, QStringLiteral("Next"))};
}

std::vector<TovuDemoPagePlayer::Step> TovuDemoPagePlayer::multipleChoiceScript(TovuMultipleChoiceQuestionView *page,
                                                                               const TovuQuestion &question)
{
    const QPointer view(page);
    const auto &options = optionsOf(question);
    std::vector<Pick> picks;
    // The first and the fourth option (or the first alone), in option order as the answer lists them.
    for (const int index : {0, 3}) {
        if (index >= page->optionButtons().size() || static_cast<std::size_t>(index) >= options.size())
            continue;
        const TovuChoice &option = options[static_cast<std::size_t>(index)];
        picks.push_back({{option.id, std::nullopt, std::nullopt},
                         option.text,
                         clickStep([view, index] { return view ? view->optionButtons().value(index) : nullptr; },
                                   QStringLiteral("an option"))});
    }
    return answerWith(
        question, std::move(picks), [view] { return view ? view->nextButton() : nullptr; }, QStringLiteral("Next"));
}

std::vector<TovuDemoPagePlayer::Step> TovuDemoPagePlayer::dropdownScript(TovuDropdownQuestionView *page,
                                                                         const TovuQuestion &question)
{
    const QPointer view(page);
    const int choice = rememberOption(question, page->optionButtons().size());
    if (choice < 0)
        return stuck(QStringLiteral("finding an option"));
    // The picture shows the list open, the option about to be chosen.
    return {clickStep([view] { return view ? view->dropdownButton() : nullptr; }, QStringLiteral("the dropdown")),
            {[view, choice] {
                 TovuButton *listed = view ? view->optionButtons().value(choice) : nullptr;
                 return listed && listed->isVisible() && view->isExpanded();
             },
             QStringLiteral("the list opening")},
            shootStep(),
            clickStep([view, choice] { return view ? view->optionButtons().value(choice) : nullptr; },
                      QStringLiteral("an option of the open list")),
            clickStep([view] { return view ? view->nextButton() : nullptr; }, QStringLiteral("Next"))};
}

std::vector<TovuDemoPagePlayer::Step> TovuDemoPagePlayer::textBoxScript(TovuTextBoxQuestionView *page,
                                                                        const TovuQuestion &question)
{
    const QPointer view(page);
    const auto &options = optionsOf(question);
    std::vector<Pick> picks;
    for (int index = 0; index < page->textFields().size(); ++index) {
        const QString label = index < page->fieldLabels().size() ? page->fieldLabels()[index]->text() : QString();
        const QString text = plausibleText(label, question.placeholder, question.title);
        const auto position = static_cast<std::size_t>(index);
        picks.push_back(
            {{position < options.size() ? options[position].id : std::string(), std::nullopt, text.toStdString()},
             text.toStdString(),
             typeStep([view, index] { return view ? view->textFields().value(index) : nullptr; }, text,
                      label.isEmpty() ? QStringLiteral("the field") : label)});
    }
    return answerWith(
        question, std::move(picks), [view] { return view ? view->submitButton() : nullptr; }, QStringLiteral("Submit"),
        " / ");
}

std::vector<TovuDemoPagePlayer::Step> TovuDemoPagePlayer::npsScript(TovuNPSQuestionView *page,
                                                                    const TovuQuestion &question)
{
    const QPointer view(page);
    constexpr int score = 9;
    remember({question.id,
              question.type,
              {{scaleRowId(question), columnId(question, score, score), std::nullopt}},
              std::to_string(score)});

    // The score opens the follow-up it asks for: choose an option of a choice
    // follow-up, or type into a text one. Its answer goes under the follow-up's id.
    const auto action = [view] {
        return view ? view->actionButton() : nullptr;
    };
    const Step followUp{
        [this, view, question, action] {
            if (!view)
                return false;
            const auto kind = view->viewModel()->followUpKind();
            if (kind == TovuNPSQuestionViewModel::FollowUpKind::none) {
                shootThenClick(m_steps, action, QStringLiteral("the action button"));
                return true;
            }
            std::optional<std::string> conditionalId;
            if (question.conditionalFollowUps) {
                for (const TovuConditionalFollowUp &range : *question.conditionalFollowUps) {
                    if (range.minRating <= score && score <= range.maxRating && range.questionId) {
                        conditionalId = range.questionId;
                        break;
                    }
                }
            }
            const std::string followUpId = conditionalId.value_or(question.id + "_followup");
            if (kind == TovuNPSQuestionViewModel::FollowUpKind::singleChoice) {
                const QStringList ids = view->viewModel()->followUpOptionIds();
                const QStringList texts = view->viewModel()->followUpOptionTexts();
                const int choice = std::min(1, static_cast<int>(ids.size()) - 1);
                if (choice < 0)
                    return false;
                m_given.push_back({followUpId,
                                   std::nullopt,
                                   {{ids[choice].toStdString(), std::nullopt, std::nullopt}},
                                   texts.value(choice).toStdString()});
                m_answer += QStringLiteral(", then \"%1\"").arg(texts.value(choice));
                m_steps.push_back(clickStep(
                    [view, id = ids[choice]]() -> QWidget * {
                        if (!view)
                            return nullptr;
                        for (TovuButton *button : view->followUpOptionButtons()) {
                            if (button->objectName() == id)
                                return button;
                        }
                        return nullptr;
                    },
                    QStringLiteral("a follow-up option")));
            } else {
                const QString text = QStringLiteral("The courier was quick and friendly.");
                const std::string row = conditionalId ? followUpId : question.id;
                m_given.push_back(
                    {followUpId, std::nullopt, {{row, std::nullopt, text.toStdString()}}, text.toStdString()});
                m_answer += QStringLiteral(", then \"%1\"").arg(text);
                m_steps.push_back(typeStep([view] { return view ? view->followUpText() : nullptr; }, text,
                                           QStringLiteral("the follow-up")));
            }
            shootThenClick(m_steps, action, QStringLiteral("the action button"));
            return true;
        },
        QStringLiteral("the follow-up")};
    return {clickStep([view] { return view ? view->npsButtons().value(score) : nullptr; }, QStringLiteral("score 9")),
            followUp};
}

std::vector<TovuDemoPagePlayer::Step> TovuDemoPagePlayer::multiNpsScript(TovuMultiNPSQuestionView *page,
                                                                         const TovuQuestion &question)
{
    const QPointer view(page);
    const auto &rows = optionsOf(question);
    constexpr std::array scores{8, 9, 7, 10};
    std::vector<Pick> picks;
    for (int row = 0; row < page->scoreButtons().size() && static_cast<std::size_t>(row) < rows.size(); ++row) {
        const int score = scores[static_cast<std::size_t>(row) % scores.size()];
        picks.push_back(
            {{rows[static_cast<std::size_t>(row)].id, columnId(question, static_cast<std::size_t>(score), score),
              std::nullopt},
             std::to_string(score),
             clickStep([view, row, score] { return view ? view->scoreButtons().value(row).value(score) : nullptr; },
                       QStringLiteral("a score"))});
    }
    return answerWith(
        question, std::move(picks), [view] { return view ? view->actionButton() : nullptr; }, QStringLiteral("Next"));
}

std::vector<TovuDemoPagePlayer::Step> TovuDemoPagePlayer::ratingScript(TovuRatingQuestionView *page,
                                                                       const TovuQuestion &question)
{
    const QPointer view(page);
    const int count = static_cast<int>(page->ratingButtons().size());
    const int rating = std::min(4, count);
    if (rating < 1)
        return stuck(QStringLiteral("finding a rating button"));
    const auto index = static_cast<std::size_t>(rating - 1);
    std::string summary = std::to_string(rating) + " of " + std::to_string(count);
    if (const std::string text = columnText(question, index); !text.empty())
        summary += " (" + text + ")";
    remember({question.id,
              question.type,
              {{scaleRowId(question), columnId(question, index, rating), std::nullopt}},
              summary});
    return {clickStep([view, rating] { return view ? view->ratingButtons().value(rating - 1) : nullptr; },
                      QStringLiteral("a rating")),
            shootStep(),
            clickStep([view] { return view ? view->actionButton() : nullptr; }, QStringLiteral("the action button"))};
}

std::vector<TovuDemoPagePlayer::Step> TovuDemoPagePlayer::multiRatingScript(TovuMultiRatingQuestionView *page,
                                                                            const TovuQuestion &question)
{
    const QPointer view(page);
    constexpr std::array positions{4, 5, 3, 4};
    std::vector<Pick> picks;
    std::size_t row = 0;
    for (const TovuChoice &item : optionsOf(question)) {
        const auto buttons = page->rowButtons().find(item.id);
        if (buttons == page->rowButtons().end() || buttons->second.isEmpty())
            continue;
        const int position = std::min(positions[row++ % positions.size()], static_cast<int>(buttons->second.size()));
        const auto index = static_cast<std::size_t>(position - 1);
        // Without columns the button's name ("rowId::columnId") says which column it stands for.
        std::string column = columnId(question, index, position);
        if (!question.columns)
            column = buttons->second[position - 1]->objectName().section(QStringLiteral("::"), 1).toStdString();
        const std::string text = columnText(question, index);
        picks.push_back({{item.id, column, std::nullopt},
                         text.empty() ? std::to_string(position) : text,
                         clickStep(
                             [view, id = item.id, position]() -> QWidget * {
                                 if (!view)
                                     return nullptr;
                                 const auto found = view->rowButtons().find(id);
                                 return found == view->rowButtons().end() ? nullptr : found->second.value(position - 1);
                             },
                             QStringLiteral("a rating"))});
    }
    return answerWith(
        question, std::move(picks), [view] { return view ? view->actionButton() : nullptr; }, QStringLiteral("Next"));
}
