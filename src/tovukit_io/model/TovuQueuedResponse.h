#pragma once

#include <tovukit_io/model/TovuAnswer.h>
#include <tovukit_io/model/TovuQualityFlags.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

struct TovuDeviceInfo {
    std::string type;
    std::string os;
    std::string browser;

    friend bool operator==(const TovuDeviceInfo &, const TovuDeviceInfo &) = default;
};

struct TovuGeolocation {
    std::string type;
    std::vector<std::optional<double>> coordinates; ///< an absent element is written as null
    std::optional<std::string> country;
    std::optional<std::string> city;
    std::optional<std::string> region;

    friend bool operator==(const TovuGeolocation &, const TovuGeolocation &) = default;
};

/// One complete response: the unit of submission and of the offline queue.
struct TovuQueuedResponse {
    std::string responseId;
    std::string surveyId;
    std::string collectorUUID;
    std::string mode;
    std::string status;
    std::string startTime; ///< ISO 8601, UTC, whole seconds
    std::string endTime;
    std::vector<TovuAnswer> answers;
    std::optional<std::map<std::string, std::string>> customVariables;
    std::optional<TovuQualityFlags> qualityFlags;
    std::optional<TovuDeviceInfo> deviceInfo;
    std::optional<TovuGeolocation> geolocation;

    friend bool operator==(const TovuQueuedResponse &, const TovuQueuedResponse &) = default;
};
