#include <tovukit_io/model/TovuQueuedResponseJson.h>

#include <tovukit_io/model/TovuJsonCoding.h>

template<>
struct tovu::json::RecordFields<TovuAnswerValue> {
    static constexpr std::string_view name = "TovuAnswerValue";
    static constexpr auto fields = std::tuple{
        field("rowId", &TovuAnswerValue::rowId),
        field("colId", &TovuAnswerValue::colId),
        field("text", &TovuAnswerValue::text),
        field("type", &TovuAnswerValue::type),
    };
};

template<>
struct tovu::json::RecordFields<TovuAnswer> {
    static constexpr std::string_view name = "TovuAnswer";
    static constexpr auto fields = std::tuple{
        field("questionId", &TovuAnswer::questionId),
        field("value", &TovuAnswer::value),
    };
};

template<>
struct tovu::json::RecordFields<TovuQualityFlags::TimeOnQuestion> {
    static constexpr std::string_view name = "TovuQualityFlags::TimeOnQuestion";
    static constexpr auto fields = std::tuple{
        field("timeOnQues", &TovuQualityFlags::TimeOnQuestion::timeOnQues),
    };
};

template<>
struct tovu::json::RecordFields<TovuQualityFlags::SurveyTiming> {
    static constexpr std::string_view name = "TovuQualityFlags::SurveyTiming";
    static constexpr auto fields = std::tuple{
        field("totalTimeDuration", &TovuQualityFlags::SurveyTiming::totalTimeDuration),
        field("netTimeDuration", &TovuQualityFlags::SurveyTiming::netTimeDuration),
        field("curTime", &TovuQualityFlags::SurveyTiming::curTime),
        field("startTime", &TovuQualityFlags::SurveyTiming::startTime),
        field("backTrackCount", &TovuQualityFlags::SurveyTiming::backTrackCount),
    };
};

template<>
struct tovu::json::RecordFields<TovuQualityFlags::QualityData> {
    static constexpr std::string_view name = "TovuQualityFlags::QualityData";
    static constexpr auto fields = std::tuple{
        field("timePerQues", &TovuQualityFlags::QualityData::timePerQues),
        field("survey", &TovuQualityFlags::QualityData::survey),
    };
};

template<>
struct tovu::json::RecordFields<TovuQualityFlags::StraightLining> {
    static constexpr std::string_view name = "TovuQualityFlags::StraightLining";
    static constexpr auto fields = std::tuple{
        field("questionList", &TovuQualityFlags::StraightLining::questionList),
    };
};

template<>
struct tovu::json::RecordFields<TovuQualityFlags> {
    static constexpr std::string_view name = "TovuQualityFlags";
    static constexpr auto fields = std::tuple{
        field("data", &TovuQualityFlags::data),
        field("straightLining", &TovuQualityFlags::straightLining),
    };
};

template<>
struct tovu::json::RecordFields<TovuDeviceInfo> {
    static constexpr std::string_view name = "TovuDeviceInfo";
    static constexpr auto fields = std::tuple{
        field("type", &TovuDeviceInfo::type),
        field("os", &TovuDeviceInfo::os),
        field("browser", &TovuDeviceInfo::browser),
    };
};

template<>
struct tovu::json::RecordFields<TovuGeolocation> {
    static constexpr std::string_view name = "TovuGeolocation";
    static constexpr auto fields = std::tuple{
        field("type", &TovuGeolocation::type),       field("coordinates", &TovuGeolocation::coordinates),
        field("country", &TovuGeolocation::country), field("city", &TovuGeolocation::city),
        field("region", &TovuGeolocation::region),
    };
};

template<>
struct tovu::json::RecordFields<TovuQueuedResponse> {
    static constexpr std::string_view name = "TovuQueuedResponse";
    static constexpr auto fields = std::tuple{
        field("responseId", &TovuQueuedResponse::responseId),
        field("surveyId", &TovuQueuedResponse::surveyId),
        field("collectorUUID", &TovuQueuedResponse::collectorUUID),
        field("mode", &TovuQueuedResponse::mode),
        field("status", &TovuQueuedResponse::status),
        field("startTime", &TovuQueuedResponse::startTime),
        field("endTime", &TovuQueuedResponse::endTime),
        field("answers", &TovuQueuedResponse::answers),
        field("customVariables", &TovuQueuedResponse::customVariables),
        field("qualityFlags", &TovuQueuedResponse::qualityFlags),
        field("deviceInfo", &TovuQueuedResponse::deviceInfo),
        field("geolocation", &TovuQueuedResponse::geolocation),
    };
};

TOVU_DEFINE_JSON_CODING(TovuAnswerValue)
TOVU_DEFINE_JSON_CODING(TovuAnswer)
TOVU_DEFINE_JSON_CODING(TovuQualityFlags::TimeOnQuestion)
TOVU_DEFINE_JSON_CODING(TovuQualityFlags::SurveyTiming)
TOVU_DEFINE_JSON_CODING(TovuQualityFlags::QualityData)
TOVU_DEFINE_JSON_CODING(TovuQualityFlags::StraightLining)
TOVU_DEFINE_JSON_CODING(TovuQualityFlags)
TOVU_DEFINE_JSON_CODING(TovuDeviceInfo)
TOVU_DEFINE_JSON_CODING(TovuGeolocation)
TOVU_DEFINE_JSON_CODING(TovuQueuedResponse)

TOVU_INSTANTIATE_CODING(TovuAnswerValue)
TOVU_INSTANTIATE_CODING(TovuAnswer)
TOVU_INSTANTIATE_CODING(TovuQualityFlags)
TOVU_INSTANTIATE_CODING(TovuDeviceInfo)
TOVU_INSTANTIATE_CODING(TovuGeolocation)
TOVU_INSTANTIATE_CODING(TovuQueuedResponse)
TOVU_INSTANTIATE_CODING(std::vector<TovuQueuedResponse>)
