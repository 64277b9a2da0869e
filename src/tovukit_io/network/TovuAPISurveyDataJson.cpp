#include <tovukit_io/network/TovuAPISurveyDataJson.h>

#include <tovukit_io/model/TovuJsonCoding.h>

template<>
struct tovu::json::RecordFields<TovuAPIRowCol> {
    static constexpr std::string_view name = "TovuAPIRowCol";
    static constexpr auto fields = std::tuple{
        field("uuid", &TovuAPIRowCol::uuid),
        field("text", &TovuAPIRowCol::text),
    };
};

template<>
struct tovu::json::RecordFields<TovuAPIOptions> {
    static constexpr std::string_view name = "TovuAPIOptions";
    static constexpr auto fields = std::tuple{
        field("row", &TovuAPIOptions::row),
        field("col", &TovuAPIOptions::col),
    };
};

template<>
struct tovu::json::RecordFields<TovuAPIHelperText> {
    static constexpr std::string_view name = "TovuAPIHelperText";
    static constexpr auto fields = std::tuple{
        field("text", &TovuAPIHelperText::text),
    };
};

template<>
struct tovu::json::RecordFields<TovuAPIRequired> {
    static constexpr std::string_view name = "TovuAPIRequired";
    static constexpr auto fields = std::tuple{
        field("enabled", &TovuAPIRequired::enabled),
    };
};

template<>
struct tovu::json::RecordFields<TovuAPIPlaceholder> {
    static constexpr std::string_view name = "TovuAPIPlaceholder";
    static constexpr auto fields = std::tuple{
        field("text", &TovuAPIPlaceholder::text),
    };
};

template<>
struct tovu::json::RecordFields<TovuAPINPSColors> {
    static constexpr std::string_view name = "TovuAPINPSColors";
    static constexpr auto fields = std::tuple{
        field("detractor", &TovuAPINPSColors::detractor),
        field("passive", &TovuAPINPSColors::passive),
        field("promoter", &TovuAPINPSColors::promoter),
    };
};

template<>
struct tovu::json::RecordFields<TovuAPINPSSettings> {
    static constexpr std::string_view name = "TovuAPINPSSettings";
    static constexpr auto fields = std::tuple{
        field("colors", &TovuAPINPSSettings::colors),
        field("leftLabel", &TovuAPINPSSettings::leftLabel),
        field("rightLabel", &TovuAPINPSSettings::rightLabel),
    };
};

template<>
struct tovu::json::RecordFields<TovuAPIScaleRange> {
    static constexpr std::string_view name = "TovuAPIScaleRange";
    static constexpr auto fields = std::tuple{
        field("min", &TovuAPIScaleRange::min),
        field("max", &TovuAPIScaleRange::max),
    };
};

template<>
struct tovu::json::RecordFields<TovuAPIConfigScale> {
    static constexpr std::string_view name = "TovuAPIConfigScale";
    static constexpr auto fields = std::tuple{
        field("uuid", &TovuAPIConfigScale::uuid),
        field("scale", &TovuAPIConfigScale::scale),
        field("enabled", &TovuAPIConfigScale::enabled),
        field("qId", &TovuAPIConfigScale::qId),
    };
};

template<>
struct tovu::json::RecordFields<TovuAPIRatingSettings> {
    static constexpr std::string_view name = "TovuAPIRatingSettings";
    static constexpr auto fields = std::tuple{
        field("type", &TovuAPIRatingSettings::type),
        field("colLabel", &TovuAPIRatingSettings::colLabel),
        field("color", &TovuAPIRatingSettings::color),
        field("position", &TovuAPIRatingSettings::position),
    };
};

template<>
struct tovu::json::RecordFields<TovuAPISettings> {
    static constexpr std::string_view name = "TovuAPISettings";
    static constexpr auto fields = std::tuple{
        field("nps", &TovuAPISettings::nps),
        field("configScale", &TovuAPISettings::configScale),
        field("rating", &TovuAPISettings::rating),
    };
};

template<>
struct tovu::json::RecordFields<TovuAPIQuestionDef> {
    static constexpr std::string_view name = "TovuAPIQuestionDef";
    static constexpr auto fields = std::tuple{
        field("uuid", &TovuAPIQuestionDef::uuid),         field("title", &TovuAPIQuestionDef::title),
        field("quesType", &TovuAPIQuestionDef::quesType), field("helperText", &TovuAPIQuestionDef::helperText),
        field("required", &TovuAPIQuestionDef::required), field("options", &TovuAPIQuestionDef::options),
        field("settings", &TovuAPIQuestionDef::settings), field("placeholder", &TovuAPIQuestionDef::placeholder),
    };
};

template<>
struct tovu::json::RecordFields<TovuAPIQuestionContainer> {
    static constexpr std::string_view name = "TovuAPIQuestionContainer";
    static constexpr auto fields = std::tuple{
        field("question", &TovuAPIQuestionContainer::question),
    };
};

template<>
struct tovu::json::RecordFields<TovuAPIBlock> {
    static constexpr std::string_view name = "TovuAPIBlock";
    static constexpr auto fields = std::tuple{
        field("questions", &TovuAPIBlock::questions),
    };
};

template<>
struct tovu::json::RecordFields<TovuAPIIntroPage> {
    static constexpr std::string_view name = "TovuAPIIntroPage";
    static constexpr auto fields = std::tuple{
        field("enabled", &TovuAPIIntroPage::enabled),
        field("content", &TovuAPIIntroPage::content),
        field("buttonText", &TovuAPIIntroPage::buttonText),
    };
};

template<>
struct tovu::json::RecordFields<TovuAPIThankYouPage> {
    static constexpr std::string_view name = "TovuAPIThankYouPage";
    static constexpr auto fields = std::tuple{
        field("enabled", &TovuAPIThankYouPage::enabled),
        field("content", &TovuAPIThankYouPage::content),
        field("links", &TovuAPIThankYouPage::links),
    };
};

template<>
struct tovu::json::RecordFields<TovuAPISurveyData> {
    static constexpr std::string_view name = "TovuAPISurveyData";
    static constexpr auto fields = std::tuple{
        field("uuid", &TovuAPISurveyData::uuid),           field("displayTitle", &TovuAPISurveyData::displayTitle),
        field("projectId", &TovuAPISurveyData::projectId), field("blocks", &TovuAPISurveyData::blocks),
        field("introPage", &TovuAPISurveyData::introPage), field("thankYouPage", &TovuAPISurveyData::thankYouPage),
    };
};

template<>
struct tovu::json::RecordFields<TovuAPIMainResponse> {
    static constexpr std::string_view name = "TovuAPIMainResponse";
    static constexpr auto fields = std::tuple{
        field("data", &TovuAPIMainResponse::data),
    };
};

TOVU_DEFINE_JSON_CODING(TovuAPIRowCol)
TOVU_DEFINE_JSON_CODING(TovuAPIOptions)
TOVU_DEFINE_JSON_CODING(TovuAPIHelperText)
TOVU_DEFINE_JSON_CODING(TovuAPIRequired)
TOVU_DEFINE_JSON_CODING(TovuAPIPlaceholder)
TOVU_DEFINE_JSON_CODING(TovuAPINPSColors)
TOVU_DEFINE_JSON_CODING(TovuAPINPSSettings)
TOVU_DEFINE_JSON_CODING(TovuAPIScaleRange)
TOVU_DEFINE_JSON_CODING(TovuAPIConfigScale)
TOVU_DEFINE_JSON_CODING(TovuAPIRatingSettings)
TOVU_DEFINE_JSON_CODING(TovuAPISettings)
TOVU_DEFINE_JSON_CODING(TovuAPIQuestionDef)
TOVU_DEFINE_JSON_CODING(TovuAPIQuestionContainer)
TOVU_DEFINE_JSON_CODING(TovuAPIBlock)
TOVU_DEFINE_JSON_CODING(TovuAPIIntroPage)
TOVU_DEFINE_JSON_CODING(TovuAPIThankYouPage)
TOVU_DEFINE_JSON_CODING(TovuAPISurveyData)
TOVU_DEFINE_JSON_CODING(TovuAPIMainResponse)

TOVU_INSTANTIATE_CODING(TovuAPISurveyData)
TOVU_INSTANTIATE_CODING(TovuAPIMainResponse)
