#include <tovukit_io/network/TovuAPISurveyData.h>

#include <tovukit_io/network/TovuSurveyText.h>

#include <QCoreApplication>

#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace {

constexpr std::string_view thankYouQuestionId = "thank_you_auto";
// Shown to the respondent, so in the library's language (English unless a translator says otherwise).
constexpr const char *defaultThankYouTitle = QT_TRANSLATE_NOOP("TovuAPISurveyData", "Thank You!");
constexpr const char *defaultThankYouSubtitle
    = QT_TRANSLATE_NOOP("TovuAPISurveyData", "Your feedback is greatly appreciated.");
constexpr const char *defaultLowerLabel = QT_TRANSLATE_NOOP("TovuAPISurveyData", "Not likely");
constexpr const char *defaultUpperLabel = QT_TRANSLATE_NOOP("TovuAPISurveyData", "Very likely");

std::string builtInText(const char *english)
{
    return QCoreApplication::translate("TovuAPISurveyData", english).toStdString();
}

using QuestionMap = std::unordered_map<std::string_view, const TovuAPIQuestionDef *>;

// Unknown or missing types are shown as single choice rather than dropped.
TovuQuestionType questionType(const std::optional<std::string> &quesType)
{
    static const std::unordered_map<std::string_view, TovuQuestionType> types{
        {"single_choice", TovuQuestionType::singleChoice},
        {"multi_choice", TovuQuestionType::multipleChoice},
        {"dropdown", TovuQuestionType::dropdown},
        {"single_text", TovuQuestionType::singleTextBox},
        {"multi_text", TovuQuestionType::multipleTextBox},
        {"nps", TovuQuestionType::nps},
        {"nps_pro", TovuQuestionType::nps},
        {"multi_nps", TovuQuestionType::multiNps},
        {"rating", TovuQuestionType::rating},
        {"rating_pro", TovuQuestionType::rating},
        {"multi_rating", TovuQuestionType::multiRating},
    };
    if (!quesType)
        return TovuQuestionType::singleChoice;
    const auto it = types.find(*quesType);
    return it == types.end() ? TovuQuestionType::singleChoice : it->second;
}

std::string cleanedOrEmpty(const std::optional<std::string> &text)
{
    return text ? TovuSurveyText::clean(*text) : std::string();
}

std::optional<std::vector<TovuChoice>> choices(const std::vector<TovuAPIRowCol> &entries)
{
    if (entries.empty())
        return std::nullopt;
    std::vector<TovuChoice> result;
    result.reserve(entries.size());
    for (const TovuAPIRowCol &entry : entries) {
        std::string text = TovuSurveyText::clean(entry.text);
        result.push_back(TovuChoice{.id = entry.uuid, .text = text, .value = std::move(text)});
    }
    return result;
}

std::optional<std::vector<TovuChoice>> rowChoices(const TovuAPIQuestionDef &question)
{
    return question.options ? choices(question.options->row) : std::nullopt;
}

std::optional<std::vector<TovuChoice>> columnChoices(const TovuAPIQuestionDef &question)
{
    if (!question.options || !question.options->col)
        return std::nullopt;
    return choices(*question.options->col);
}

std::optional<TovuNPSLabels> npsLabels(const TovuAPISettings &settings)
{
    if (!settings.nps)
        return std::nullopt;
    const TovuAPINPSSettings &nps = *settings.nps;
    TovuNPSLabels labels{
        .lower = nps.leftLabel.value_or(builtInText(defaultLowerLabel)),
        .upper = nps.rightLabel.value_or(builtInText(defaultUpperLabel)),
    };
    if (nps.colors) {
        labels.detractorColor = nps.colors->detractor;
        labels.passiveColor = nps.colors->passive;
        labels.promoterColor = nps.colors->promoter;
    }
    return labels;
}

// Only enabled ranges whose first follow-up exists become follow-ups; further
// ids of a range are ignored.
std::optional<std::vector<TovuConditionalFollowUp>> conditionalFollowUps(const TovuAPISettings &settings,
                                                                         const QuestionMap &questions)
{
    if (!settings.configScale)
        return std::nullopt;
    std::vector<TovuConditionalFollowUp> result;
    for (const TovuAPIConfigScale &range : *settings.configScale) {
        if (!range.enabled.value_or(false) || range.qId.empty())
            continue;
        const auto it = questions.find(range.qId.front());
        if (it == questions.end())
            continue;
        const TovuAPIQuestionDef &followUp = *it->second;
        result.push_back(TovuConditionalFollowUp{
            .minRating = range.scale.min,
            .maxRating = range.scale.max,
            .followUpQuestion = cleanedOrEmpty(followUp.title),
            .questionId = range.qId.front(),
            .followUpType = questionType(followUp.quesType),
            .followUpOptions = rowChoices(followUp),
        });
    }
    if (result.empty())
        return std::nullopt;
    return result;
}

TovuQuestion nativeQuestion(const TovuAPIQuestionDef &source, const QuestionMap &questions)
{
    TovuQuestion question{
        .id = source.uuid,
        .type = questionType(source.quesType),
        .title = cleanedOrEmpty(source.title),
        .subtitle = source.helperText ? source.helperText->text : std::nullopt,
        .placeholder = source.placeholder ? source.placeholder->text : std::nullopt,
        .isRequired = source.required && source.required->enabled.value_or(false),
        .options = rowChoices(source),
        .columns = columnChoices(source),
    };
    if (source.settings) {
        const TovuAPISettings &settings = *source.settings;
        question.npsLabels = npsLabels(settings);
        if (source.quesType == "nps_pro")
            question.conditionalFollowUps = conditionalFollowUps(settings, questions);
        if (settings.rating) {
            question.ratingStyle = settings.rating->type;
            question.showColLabels = settings.rating->colLabel;
            question.ratingColor = settings.rating->color;
        }
    }
    return question;
}

TovuQuestion closingQuestion(const std::optional<TovuAPIThankYouPage> &page)
{
    TovuQuestion question{
        .id = std::string(thankYouQuestionId),
        .type = TovuQuestionType::thankYou,
        .title = builtInText(defaultThankYouTitle),
        .isRequired = false,
    };
    if (page && page->enabled) {
        std::string content = cleanedOrEmpty(page->content);
        if (!content.empty())
            question.title = std::move(content);
        question.redirectURL = page->links;
    } else {
        question.subtitle = builtInText(defaultThankYouSubtitle);
    }
    return question;
}

} // namespace

TovuSurvey TovuAPISurveyData::toNativeSurvey() const
{
    // First pass: every question by id (a later duplicate wins), and every id
    // some score range points to, enabled or not: those are asked only as
    // follow-ups of their parent.
    QuestionMap questionsById;
    std::unordered_set<std::string_view> followUpIds;
    for (const TovuAPIBlock &block : blocks) {
        for (const TovuAPIQuestionContainer &container : block.questions) {
            const TovuAPIQuestionDef &question = container.question;
            questionsById.insert_or_assign(question.uuid, &question);
            if (!question.settings || !question.settings->configScale)
                continue;
            for (const TovuAPIConfigScale &range : *question.settings->configScale)
                followUpIds.insert(range.qId.begin(), range.qId.end());
        }
    }

    TovuSurvey survey{.id = uuid, .name = displayTitle, .projectId = projectId};
    for (const TovuAPIBlock &block : blocks) {
        for (const TovuAPIQuestionContainer &container : block.questions) {
            if (!followUpIds.contains(container.question.uuid))
                survey.questions.push_back(nativeQuestion(container.question, questionsById));
        }
    }
    survey.questions.push_back(closingQuestion(thankYouPage));

    if (introPage) {
        survey.introPage = TovuSurveyPage{
            .enabled = introPage->enabled,
            .content = introPage->content ? std::optional(TovuSurveyText::clean(*introPage->content)) : std::nullopt,
            .buttonText = introPage->buttonText,
        };
    }
    if (thankYouPage) {
        survey.thankYouPage = TovuSurveyPage{
            .enabled = thankYouPage->enabled,
            .content
            = thankYouPage->content ? std::optional(TovuSurveyText::clean(*thankYouPage->content)) : std::nullopt,
        };
    }
    return survey;
}
