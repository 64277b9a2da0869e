// The page scripts: what the demo answers on each page type, as steps the
// player runs, and the answer it remembers for each. They read the page's view
// model, so the Qt Widgets and the Qt Quick sheet are answered alike.

#include "TovuDemoPagePlayer.h"

#include <tovukit_io/viewmodel/TovuDropdownQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuIntroViewModel.h>
#include <tovukit_io/viewmodel/TovuMultiNPSQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuMultiRatingQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuMultipleChoiceQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuNPSQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuRatingQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuSingleChoiceQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuTextBoxQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuThankYouViewModel.h>

#include <algorithm>
#include <array>

using Kind = TovuDemoPagePlayer::Control::Kind;

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

template<typename Model>
std::vector<TovuDemoPagePlayer::Step> TovuDemoPagePlayer::questionScript(Model *model, QuestionScript<Model> answer)
{
    if (!model->question())
        return stuck(QStringLiteral("reading the page's question"));
    const TovuQuestion question = *model->question();
    m_title = shortText(question.title);
    return (this->*answer)(model, question);
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
void TovuDemoPagePlayer::shootThenClick(std::vector<Step> &steps, const Control &button, const QString &what)
{
    steps.push_back(shootStep());
    steps.push_back(clickStep(button, what));
}

// Gives every pick, in order, as one answer whose summary joins their texts,
// then saves the page and leaves it with its action (`what`).
std::vector<TovuDemoPagePlayer::Step> TovuDemoPagePlayer::answerWith(const TovuQuestion &question,
                                                                     std::vector<Pick> picks, const QString &what,
                                                                     std::string_view separator)
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
    shootThenClick(steps, {Kind::action}, what);
    return steps;
}

std::vector<TovuDemoPagePlayer::Step> TovuDemoPagePlayer::script(QObject *model)
{
    if (auto *intro = qobject_cast<TovuIntroViewModel *>(model))
        return introScript(intro);
    if (auto *thanks = qobject_cast<TovuThankYouViewModel *>(model))
        return thankYouScript(thanks);
    if (auto *page = qobject_cast<TovuSingleChoiceQuestionViewModel *>(model))
        return questionScript(page, &TovuDemoPagePlayer::singleChoiceScript);
    if (auto *page = qobject_cast<TovuMultipleChoiceQuestionViewModel *>(model))
        return questionScript(page, &TovuDemoPagePlayer::multipleChoiceScript);
    if (auto *page = qobject_cast<TovuDropdownQuestionViewModel *>(model))
        return questionScript(page, &TovuDemoPagePlayer::dropdownScript);
    if (auto *page = qobject_cast<TovuTextBoxQuestionViewModel *>(model))
        return questionScript(page, &TovuDemoPagePlayer::textBoxScript);
    if (auto *page = qobject_cast<TovuNPSQuestionViewModel *>(model))
        return questionScript(page, &TovuDemoPagePlayer::npsScript);
    if (auto *page = qobject_cast<TovuMultiNPSQuestionViewModel *>(model))
        return questionScript(page, &TovuDemoPagePlayer::multiNpsScript);
    if (auto *page = qobject_cast<TovuRatingQuestionViewModel *>(model))
        return questionScript(page, &TovuDemoPagePlayer::ratingScript);
    if (auto *page = qobject_cast<TovuMultiRatingQuestionViewModel *>(model))
        return questionScript(page, &TovuDemoPagePlayer::multiRatingScript);
    if (auto *page = qobject_cast<TovuQuestionViewModel *>(model))
        return questionScript(page, &TovuDemoPagePlayer::actionOnlyScript);
    return stuck(QStringLiteral("answering a page of a kind the demo does not know"));
}

// -- one script per page type ---------------------------------------------------------

std::vector<TovuDemoPagePlayer::Step> TovuDemoPagePlayer::introScript(TovuIntroViewModel *model)
{
    m_title = shortText(model->content());
    m_answer = QStringLiteral("tapped \"%1\"").arg(model->buttonTitle());
    return {shootStep(), clickStep({Kind::start}, QStringLiteral("start"))};
}

std::vector<TovuDemoPagePlayer::Step> TovuDemoPagePlayer::thankYouScript(TovuThankYouViewModel *model)
{
    m_lastPage = true;
    m_title = shortText(model->title());
    return {{[this] { return !m_page || hasSettled(m_page); }, QStringLiteral("the page settling")}, shootStep()};
}

std::vector<TovuDemoPagePlayer::Step> TovuDemoPagePlayer::singleChoiceScript(TovuSingleChoiceQuestionViewModel *model,
                                                                             const TovuQuestion &question)
{
    const int choice = rememberOption(question, model->optionTexts().size());
    if (choice < 0)
        return stuck(QStringLiteral("finding an option"));
    return {clickStep({Kind::option, choice}, QStringLiteral("an option")), shootStep(),
            clickStep({Kind::action}, QStringLiteral("Next"))};
}

std::vector<TovuDemoPagePlayer::Step>
TovuDemoPagePlayer::multipleChoiceScript(TovuMultipleChoiceQuestionViewModel *model, const TovuQuestion &question)
{
    const auto &options = optionsOf(question);
    std::vector<Pick> picks;
    // The first and the fourth option (or the first alone), in option order as the answer lists them.
    for (const int index : {0, 3}) {
        if (index >= model->optionTexts().size() || static_cast<std::size_t>(index) >= options.size())
            continue;
        const TovuChoice &option = options[static_cast<std::size_t>(index)];
        picks.push_back({{option.id, std::nullopt, std::nullopt},
                         option.text,
                         clickStep({Kind::option, index}, QStringLiteral("an option"))});
    }
    return answerWith(question, std::move(picks), QStringLiteral("Next"));
}

std::vector<TovuDemoPagePlayer::Step> TovuDemoPagePlayer::dropdownScript(TovuDropdownQuestionViewModel *model,
                                                                         const TovuQuestion &question)
{
    const int choice = rememberOption(question, model->optionTexts().size());
    if (choice < 0)
        return stuck(QStringLiteral("finding an option"));
    const QPointer open(model);
    // The picture shows the list open, the option about to be chosen.
    return {clickStep({Kind::selector}, QStringLiteral("the dropdown")),
            {[this, open, choice] {
                 return open && open->isExpanded() && ready({Kind::listedOption, choice});
             },
             QStringLiteral("the list opening")},
            shootStep(),
            clickStep({Kind::listedOption, choice}, QStringLiteral("an option of the open list")),
            clickStep({Kind::action}, QStringLiteral("Next"))};
}

std::vector<TovuDemoPagePlayer::Step> TovuDemoPagePlayer::textBoxScript(TovuTextBoxQuestionViewModel *model,
                                                                        const TovuQuestion &question)
{
    const auto &options = optionsOf(question);
    std::vector<Pick> picks;
    for (int index = 0; index < model->fieldCount(); ++index) {
        // Only the fields of several have labels.
        const QString label = model->isMultiple() ? model->fieldLabels().value(index) : QString();
        const QString text = plausibleText(label, question.placeholder, question.title);
        const auto position = static_cast<std::size_t>(index);
        picks.push_back(
            {{position < options.size() ? options[position].id : std::string(), std::nullopt, text.toStdString()},
             text.toStdString(),
             typeStep({Kind::field, index}, text, label.isEmpty() ? QStringLiteral("the field") : label)});
    }
    return answerWith(question, std::move(picks), QStringLiteral("Submit"), " / ");
}

std::vector<TovuDemoPagePlayer::Step> TovuDemoPagePlayer::npsScript(TovuNPSQuestionViewModel *model,
                                                                    const TovuQuestion &question)
{
    constexpr int score = 9;
    remember({question.id,
              question.type,
              {{scaleRowId(question), columnId(question, score, score), std::nullopt}},
              std::to_string(score)});
    return {clickStep({Kind::score, score}, QStringLiteral("score 9")), npsFollowUpStep(model, question, score)};
}

// The score opens the follow-up it asks for: choose an option of a choice
// follow-up, or type into a text one. Its answer goes under the follow-up's id.
TovuDemoPagePlayer::Step TovuDemoPagePlayer::npsFollowUpStep(TovuNPSQuestionViewModel *model,
                                                             const TovuQuestion &question, int score)
{
    const QPointer page(model);
    const QString action = QStringLiteral("the action button");
    return {[this, page, question, score, action] {
                if (!page)
                    return false;
                const auto kind = page->followUpKind();
                if (kind == TovuNPSQuestionViewModel::FollowUpKind::none) {
                    shootThenClick(m_steps, {Kind::action}, action);
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
                    const QStringList ids = page->followUpOptionIds();
                    const QStringList texts = page->followUpOptionTexts();
                    const int choice = std::min(1, static_cast<int>(ids.size()) - 1);
                    if (choice < 0)
                        return false;
                    m_given.push_back({followUpId,
                                       std::nullopt,
                                       {{ids[choice].toStdString(), std::nullopt, std::nullopt}},
                                       texts.value(choice).toStdString()});
                    m_answer += QStringLiteral(", then \"%1\"").arg(texts.value(choice));
                    m_steps.push_back(
                        clickStep({Kind::followUpOption, 0, -1, ids[choice]}, QStringLiteral("a follow-up option")));
                } else {
                    const QString text = QStringLiteral("The courier was quick and friendly.");
                    const std::string row = conditionalId ? followUpId : question.id;
                    m_given.push_back(
                        {followUpId, std::nullopt, {{row, std::nullopt, text.toStdString()}}, text.toStdString()});
                    m_answer += QStringLiteral(", then \"%1\"").arg(text);
                    m_steps.push_back(typeStep({Kind::followUpField}, text, QStringLiteral("the follow-up")));
                }
                shootThenClick(m_steps, {Kind::action}, action);
                return true;
            },
            QStringLiteral("the follow-up")};
}

std::vector<TovuDemoPagePlayer::Step> TovuDemoPagePlayer::multiNpsScript(TovuMultiNPSQuestionViewModel *model,
                                                                         const TovuQuestion &question)
{
    const auto &rows = optionsOf(question);
    constexpr std::array scores{8, 9, 7, 10};
    std::vector<Pick> picks;
    for (int row = 0; row < model->optionTexts().size() && static_cast<std::size_t>(row) < rows.size(); ++row) {
        const int score = scores[static_cast<std::size_t>(row) % scores.size()];
        picks.push_back({{rows[static_cast<std::size_t>(row)].id,
                          columnId(question, static_cast<std::size_t>(score), score), std::nullopt},
                         std::to_string(score),
                         clickStep({Kind::score, score, row}, QStringLiteral("a score"))});
    }
    return answerWith(question, std::move(picks), QStringLiteral("Next"));
}

std::vector<TovuDemoPagePlayer::Step> TovuDemoPagePlayer::ratingScript(TovuRatingQuestionViewModel *model,
                                                                       const TovuQuestion &question)
{
    const int count = model->buttonCount();
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
    return {clickStep({Kind::rating, rating}, QStringLiteral("a rating")), shootStep(),
            clickStep({Kind::action}, QStringLiteral("the action button"))};
}

std::vector<TovuDemoPagePlayer::Step> TovuDemoPagePlayer::multiRatingScript(TovuMultiRatingQuestionViewModel *model,
                                                                            const TovuQuestion &question)
{
    constexpr std::array positions{4, 5, 3, 4};
    const QStringList columns = model->columnIds();
    std::vector<Pick> picks;
    int row = 0;
    std::size_t rated = 0;
    for (const TovuChoice &item : optionsOf(question)) {
        const int itemRow = row++;
        if (columns.isEmpty())
            continue; // a row without buttons
        const int position = std::min(positions[rated++ % positions.size()], static_cast<int>(columns.size()));
        const QString column = columns[position - 1];
        const std::string text = columnText(question, static_cast<std::size_t>(position - 1));
        picks.push_back({{item.id, column.toStdString(), std::nullopt},
                         text.empty() ? std::to_string(position) : text,
                         clickStep({Kind::cell, position, itemRow,
                                    TovuMultiRatingQuestionViewModel::identifier(item.id, column.toStdString())},
                                   QStringLiteral("a rating"))});
    }
    return answerWith(question, std::move(picks), QStringLiteral("Next"));
}

std::vector<TovuDemoPagePlayer::Step> TovuDemoPagePlayer::actionOnlyScript(TovuQuestionViewModel *,
                                                                           const TovuQuestion &question)
{
    // The page reports the question with nothing chosen.
    remember({question.id, question.type, {}, "(nothing to answer on this page)"});
    std::vector<Step> steps;
    shootThenClick(steps, {Kind::action}, QStringLiteral("the action button"));
    return steps;
}
