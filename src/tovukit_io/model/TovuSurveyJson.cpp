#include <tovukit_io/model/TovuSurveyJson.h>

#include <tovukit_io/model/TovuJsonCoding.h>

template<>
struct tovu::json::RecordFields<TovuChoice> {
    static constexpr std::string_view name = "TovuChoice";
    static constexpr auto fields = std::tuple{
        field("id", &TovuChoice::id),
        field("text", &TovuChoice::text),
        field("value", &TovuChoice::value),
    };
};

template<>
struct tovu::json::RecordFields<TovuNPSLabels> {
    static constexpr std::string_view name = "TovuNPSLabels";
    static constexpr auto fields = std::tuple{
        field("lower", &TovuNPSLabels::lower),
        field("upper", &TovuNPSLabels::upper),
        field("detractorColor", &TovuNPSLabels::detractorColor),
        field("passiveColor", &TovuNPSLabels::passiveColor),
        field("promoterColor", &TovuNPSLabels::promoterColor),
    };
};

template<>
struct tovu::json::RecordFields<TovuConditionalFollowUp> {
    static constexpr std::string_view name = "TovuConditionalFollowUp";
    static constexpr auto fields = std::tuple{
        field("minRating", &TovuConditionalFollowUp::minRating),
        field("maxRating", &TovuConditionalFollowUp::maxRating),
        field("followUpQuestion", &TovuConditionalFollowUp::followUpQuestion),
        field("questionId", &TovuConditionalFollowUp::questionId),
        field("followUpType", &TovuConditionalFollowUp::followUpType),
        field("followUpOptions", &TovuConditionalFollowUp::followUpOptions),
    };
};

template<>
struct tovu::json::RecordFields<TovuQuestion> {
    static constexpr std::string_view name = "TovuQuestion";
    static constexpr auto fields = std::tuple{
        field("id", &TovuQuestion::id),
        field("type", &TovuQuestion::type),
        field("title", &TovuQuestion::title),
        field("subtitle", &TovuQuestion::subtitle),
        field("placeholder", &TovuQuestion::placeholder),
        field("isRequired", &TovuQuestion::isRequired),
        field("options", &TovuQuestion::options),
        field("columns", &TovuQuestion::columns),
        field("npsLabels", &TovuQuestion::npsLabels),
        field("followUpQuestion", &TovuQuestion::followUpQuestion),
        field("conditionalFollowUps", &TovuQuestion::conditionalFollowUps),
        field("redirectURL", &TovuQuestion::redirectURL),
        field("ratingStyle", &TovuQuestion::ratingStyle),
        field("showColLabels", &TovuQuestion::showColLabels),
        field("ratingColor", &TovuQuestion::ratingColor),
    };
};

template<>
struct tovu::json::RecordFields<TovuSurveyPage> {
    static constexpr std::string_view name = "TovuSurveyPage";
    static constexpr auto fields = std::tuple{
        field("enabled", &TovuSurveyPage::enabled),
        field("content", &TovuSurveyPage::content),
        field("buttonText", &TovuSurveyPage::buttonText),
    };
};

template<>
struct tovu::json::RecordFields<TovuTheme> {
    static constexpr std::string_view name = "TovuTheme";
    static constexpr auto fields = std::tuple{
        field("transparency", &TovuTheme::transparency),
        field("mode", &TovuTheme::mode),
        field("primaryColor", &TovuTheme::primaryColor),
        field("secondaryColor", &TovuTheme::secondaryColor),
        field("backgroundColor", &TovuTheme::backgroundColor),
        field("textColor", &TovuTheme::textColor),
        field("fontFamily", &TovuTheme::fontFamily),
        field("fontSizeBase", &TovuTheme::fontSizeBase),
        field("toasterHeight", &TovuTheme::toasterHeight),
        field("overlayHeight", &TovuTheme::overlayHeight),
        field("cornerRadius", &TovuTheme::cornerRadius),
        field("animationDuration", &TovuTheme::animationDuration),
    };
};

template<>
struct tovu::json::RecordFields<TovuSurvey> {
    static constexpr std::string_view name = "TovuSurvey";
    static constexpr auto fields = std::tuple{
        field("id", &TovuSurvey::id),
        field("name", &TovuSurvey::name),
        field("projectId", &TovuSurvey::projectId),
        field("theme", &TovuSurvey::theme),
        field("questions", &TovuSurvey::questions),
        field("introPage", &TovuSurvey::introPage),
        field("thankYouPage", &TovuSurvey::thankYouPage),
    };
};

TOVU_DEFINE_JSON_CODING(TovuChoice)
TOVU_DEFINE_JSON_CODING(TovuNPSLabels)
TOVU_DEFINE_JSON_CODING(TovuConditionalFollowUp)
TOVU_DEFINE_JSON_CODING(TovuQuestion)
TOVU_DEFINE_JSON_CODING(TovuSurveyPage)
TOVU_DEFINE_JSON_CODING(TovuTheme)
TOVU_DEFINE_JSON_CODING(TovuSurvey)

void to_json(nlohmann::ordered_json &json, TovuQuestionType value)
{
    tovu::json::encodeValue(json, value);
}

void from_json(const nlohmann::ordered_json &json, TovuQuestionType &value)
{
    tovu::json::decodeValue(json, value);
}

void to_json(nlohmann::ordered_json &json, TovuThemeMode value)
{
    tovu::json::encodeValue(json, value);
}

void from_json(const nlohmann::ordered_json &json, TovuThemeMode &value)
{
    tovu::json::decodeValue(json, value);
}

TOVU_INSTANTIATE_CODING(TovuChoice)
TOVU_INSTANTIATE_CODING(TovuNPSLabels)
TOVU_INSTANTIATE_CODING(TovuConditionalFollowUp)
TOVU_INSTANTIATE_CODING(TovuQuestion)
TOVU_INSTANTIATE_CODING(TovuSurveyPage)
TOVU_INSTANTIATE_CODING(TovuTheme)
TOVU_INSTANTIATE_CODING(TovuSurvey)
