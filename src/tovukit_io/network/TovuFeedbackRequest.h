#pragma once

#include <tovukit_io/model/TovuQualityFlags.h>
#include <tovukit_io/model/TovuQueuedResponse.h>

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The feedback API's payload for one response, built from a TovuQueuedResponse
// at send time. Keys are the API's own (snake case, and "geoLocation");
// coding in TovuFeedbackRequestJson.h.

struct TovuFeedbackAnswerValue {
    std::optional<std::string> row_id;
    std::optional<std::string> col_id;
    std::optional<std::string> text;

    friend bool operator==(const TovuFeedbackAnswerValue &, const TovuFeedbackAnswerValue &) = default;
};

struct TovuFeedbackQuestionAnswer {
    std::string uuid;
    std::vector<TovuFeedbackAnswerValue> answer;

    friend bool operator==(const TovuFeedbackQuestionAnswer &, const TovuFeedbackQuestionAnswer &) = default;
};

struct TovuFeedbackResponseItem {
    std::string response_status;
    std::string mode;
    std::string userAgent;
    std::optional<std::string> start_time;
    std::optional<std::string> end_time;
    std::optional<std::int64_t> time_spent; ///< seconds
    std::optional<std::map<std::string, std::string>> custom_variables;
    std::optional<TovuQualityFlags> qualityFlags;
    std::optional<TovuDeviceInfo> deviceInfo;
    std::optional<TovuGeolocation> geoLocation;
    std::vector<TovuFeedbackQuestionAnswer> questions;

    friend bool operator==(const TovuFeedbackResponseItem &, const TovuFeedbackResponseItem &) = default;
};

struct TovuFeedbackRequest {
    std::string collector_id;
    std::vector<TovuFeedbackResponseItem> responses;

    friend bool operator==(const TovuFeedbackRequest &, const TovuFeedbackRequest &) = default;
};

/// The payload for `response`: one item, the closing "thank_you_auto" answer
/// left out, empty row ids left out, the time spent in whole seconds, and a
/// user agent naming this device's operating-system version now (a retry from
/// the offline queue carries the version of the moment it is sent).
TovuFeedbackRequest makeFeedbackRequest(const TovuQueuedResponse &response);

/// The same with a given operating-system version ("17.4" → "17_4" in the user agent).
TovuFeedbackRequest makeFeedbackRequest(const TovuQueuedResponse &response, std::string_view osVersion);
