#include <tovukit_io/network/TovuFeedbackRequest.h>

#include <QString>
#include <QSysInfo>

#include <algorithm>
#include <cmath>

namespace {

constexpr std::string_view closingQuestionId = "thank_you_auto";

std::string userAgent(std::string_view osVersion)
{
    std::string version(osVersion);
    std::replace(version.begin(), version.end(), '.', '_');
    return "Mozilla/5.0 (iPhone; CPU iPhone OS " + version
        + " like Mac OS X) AppleWebKit/605.1.15 (KHTML, like Gecko) Mobile/15E148";
}

// Net minutes to whole seconds, truncated toward zero. A time that is not
// finite or does not fit 64 bits (a clock gone wrong) is sent as no time at
// all rather than failing the whole response.
std::optional<std::int64_t> timeSpent(const std::optional<TovuQualityFlags> &flags)
{
    if (!flags)
        return std::nullopt;
    const double seconds = std::trunc(flags->data.survey.netTimeDuration * 60);
    constexpr double limit = 9223372036854775808.0; // 2^63
    if (!std::isfinite(seconds) || seconds < -limit || seconds >= limit)
        return std::nullopt;
    return static_cast<std::int64_t>(seconds);
}

TovuFeedbackQuestionAnswer questionAnswer(const TovuAnswer &answer)
{
    TovuFeedbackQuestionAnswer result{.uuid = answer.questionId};
    result.answer.reserve(answer.value.size());
    for (const TovuAnswerValue &value : answer.value) {
        result.answer.push_back(TovuFeedbackAnswerValue{
            .row_id = value.rowId.empty() ? std::nullopt : std::optional(value.rowId),
            .col_id = value.colId,
            .text = value.text,
        });
    }
    return result;
}

} // namespace

TovuFeedbackRequest makeFeedbackRequest(const TovuQueuedResponse &response, std::string_view osVersion)
{
    TovuFeedbackResponseItem item{
        .response_status = response.status,
        .mode = response.mode,
        .userAgent = userAgent(osVersion),
        .start_time = response.startTime,
        .end_time = response.endTime,
        .time_spent = timeSpent(response.qualityFlags),
        .custom_variables = response.customVariables,
        .qualityFlags = response.qualityFlags,
        .deviceInfo = response.deviceInfo,
        .geoLocation = response.geolocation,
    };
    for (const TovuAnswer &answer : response.answers) {
        if (answer.questionId != closingQuestionId)
            item.questions.push_back(questionAnswer(answer));
    }
    return TovuFeedbackRequest{.collector_id = response.collectorUUID, .responses = {std::move(item)}};
}

TovuFeedbackRequest makeFeedbackRequest(const TovuQueuedResponse &response)
{
    return makeFeedbackRequest(response, QSysInfo::productVersion().toStdString());
}
