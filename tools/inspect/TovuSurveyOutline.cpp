#include "TovuSurveyOutline.h"

#include <cstddef>
#include <sstream>
#include <string_view>

namespace {

std::string quoted(std::string_view text)
{
    std::string result = "\"";
    for (const char c : text) {
        if (c == '\n')
            result += "\\n";
        else if (c == '"')
            result += "\\\"";
        else
            result += c;
    }
    return result + '"';
}

void renderPage(std::ostream &out, std::string_view label, const std::optional<TovuSurveyPage> &page)
{
    out << "  " << label << ": ";
    if (!page) {
        out << "none\n";
        return;
    }
    out << (page->enabled ? "enabled" : "disabled");
    if (page->content)
        out << ", " << quoted(*page->content);
    if (page->buttonText)
        out << ", button " << quoted(*page->buttonText);
    out << '\n';
}

void renderChoices(std::ostream &out, std::string_view indent, std::string_view label,
                   const std::optional<std::vector<TovuChoice>> &choices)
{
    if (!choices)
        return;
    out << indent << label << " (" << choices->size() << "):\n";
    for (const TovuChoice &choice : *choices)
        out << indent << "  - " << choice.id << "  " << quoted(choice.text) << '\n';
}

// Columns are scale points: their texts on one line say more than their ids.
void renderColumns(std::ostream &out, const std::optional<std::vector<TovuChoice>> &columns)
{
    if (!columns)
        return;
    out << "       columns (" << columns->size() << "):";
    for (std::size_t i = 0; i < columns->size(); ++i)
        out << (i == 0 ? " " : ", ") << quoted((*columns)[i].text);
    out << '\n';
}

void renderNpsLabels(std::ostream &out, const TovuNPSLabels &labels)
{
    out << "       scale: " << quoted(labels.lower) << " .. " << quoted(labels.upper);
    const auto colour = [&out](std::string_view name, const std::optional<std::string> &value) {
        if (value)
            out << ", " << name << ' ' << *value;
    };
    colour("detractor", labels.detractorColor);
    colour("passive", labels.passiveColor);
    colour("promoter", labels.promoterColor);
    out << '\n';
}

void renderFollowUps(std::ostream &out, const std::vector<TovuConditionalFollowUp> &followUps)
{
    out << "       follow-ups (" << followUps.size() << "):\n";
    for (const TovuConditionalFollowUp &followUp : followUps) {
        out << "         " << followUp.minRating << ".." << followUp.maxRating << " -> "
            << followUp.questionId.value_or("(no id)") << ' '
            << (followUp.followUpType ? rawValue(*followUp.followUpType) : "(no type)") << ' '
            << quoted(followUp.followUpQuestion) << '\n';
        renderChoices(out, "           ", "options", followUp.followUpOptions);
    }
}

void renderRating(std::ostream &out, const TovuQuestion &question)
{
    if (!question.ratingStyle && !question.ratingColor && !question.showColLabels)
        return;
    out << "       rating:";
    if (question.ratingStyle)
        out << " style " << quoted(*question.ratingStyle);
    if (question.ratingColor)
        out << ", colour " << *question.ratingColor;
    if (question.showColLabels)
        out << ", column labels " << (*question.showColLabels ? "shown" : "hidden");
    out << '\n';
}

void renderQuestion(std::ostream &out, std::size_t index, const TovuQuestion &question)
{
    out << "  " << (index < 9 ? " " : "") << index + 1 << ". " << question.id << "  " << rawValue(question.type)
        << (question.isRequired ? "  required" : "") << '\n';
    out << "       " << quoted(question.title) << '\n';
    if (question.subtitle)
        out << "       subtitle: " << quoted(*question.subtitle) << '\n';
    if (question.placeholder)
        out << "       placeholder: " << quoted(*question.placeholder) << '\n';
    renderChoices(out, "       ", question.columns ? "rows" : "options", question.options);
    renderColumns(out, question.columns);
    if (question.npsLabels)
        renderNpsLabels(out, *question.npsLabels);
    renderRating(out, question);
    if (question.conditionalFollowUps)
        renderFollowUps(out, *question.conditionalFollowUps);
    if (question.redirectURL)
        out << "       redirect: " << *question.redirectURL << '\n';
}

} // namespace

std::string TovuSurveyOutline::render(const TovuSurvey &survey)
{
    std::ostringstream out;
    out << "Survey " << quoted(survey.name) << "  id " << survey.id;
    if (survey.projectId)
        out << "  project " << *survey.projectId;
    out << '\n';
    renderPage(out, "Intro page", survey.introPage);
    renderPage(out, "Thank-you page", survey.thankYouPage);
    out << "  Questions (" << survey.questions.size() << "):\n";
    for (std::size_t i = 0; i < survey.questions.size(); ++i)
        renderQuestion(out, i, survey.questions[i]);
    return out.str();
}
