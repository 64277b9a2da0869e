#pragma once

#include <string>

/// What a collector resolves to: the survey it serves, and its own ids.
struct CollectorInfo {
    std::string surveyId;
    std::string uuid; ///< empty when the backend gave none
    std::string mongoId; ///< the backend's "_id"; empty when absent

    friend bool operator==(const CollectorInfo &, const CollectorInfo &) = default;
};
