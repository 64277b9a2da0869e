#include <tovukit_io/network/TovuFeedbackRequestJson.h>

#include <tovukit_io/model/TovuJsonCoding.h>
#include <tovukit_io/model/TovuQueuedResponseJson.h>

template<>
struct tovu::json::RecordFields<TovuFeedbackAnswerValue> {
    static constexpr std::string_view name = "TovuFeedbackAnswerValue";
    static constexpr auto fields = std::tuple{
        field("row_id", &TovuFeedbackAnswerValue::row_id),
        field("col_id", &TovuFeedbackAnswerValue::col_id),
        field("text", &TovuFeedbackAnswerValue::text),
    };
};

template<>
struct tovu::json::RecordFields<TovuFeedbackQuestionAnswer> {
    static constexpr std::string_view name = "TovuFeedbackQuestionAnswer";
    static constexpr auto fields = std::tuple{
        field("uuid", &TovuFeedbackQuestionAnswer::uuid),
        field("answer", &TovuFeedbackQuestionAnswer::answer),
    };
};

template<>
struct tovu::json::RecordFields<TovuFeedbackResponseItem> {
    static constexpr std::string_view name = "TovuFeedbackResponseItem";
    static constexpr auto fields = std::tuple{
        field("response_status", &TovuFeedbackResponseItem::response_status),
        field("mode", &TovuFeedbackResponseItem::mode),
        field("userAgent", &TovuFeedbackResponseItem::userAgent),
        field("start_time", &TovuFeedbackResponseItem::start_time),
        field("end_time", &TovuFeedbackResponseItem::end_time),
        field("time_spent", &TovuFeedbackResponseItem::time_spent),
        field("custom_variables", &TovuFeedbackResponseItem::custom_variables),
        field("qualityFlags", &TovuFeedbackResponseItem::qualityFlags),
        field("deviceInfo", &TovuFeedbackResponseItem::deviceInfo),
        field("geoLocation", &TovuFeedbackResponseItem::geoLocation),
        field("questions", &TovuFeedbackResponseItem::questions),
    };
};

template<>
struct tovu::json::RecordFields<TovuFeedbackRequest> {
    static constexpr std::string_view name = "TovuFeedbackRequest";
    static constexpr auto fields = std::tuple{
        field("collector_id", &TovuFeedbackRequest::collector_id),
        field("responses", &TovuFeedbackRequest::responses),
    };
};

TOVU_DEFINE_JSON_CODING(TovuFeedbackAnswerValue)
TOVU_DEFINE_JSON_CODING(TovuFeedbackQuestionAnswer)
TOVU_DEFINE_JSON_CODING(TovuFeedbackResponseItem)
TOVU_DEFINE_JSON_CODING(TovuFeedbackRequest)

// Only ever written: the payload goes out, the backend never sends it back.
template TovuResult<std::string> tovuEncode<TovuFeedbackRequest>(const TovuFeedbackRequest &);
