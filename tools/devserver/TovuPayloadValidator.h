#pragma once

#include "TovuDevJson.h"

#include <optional>
#include <string>

/// Checks a create-response body against the shape the feedback API takes,
/// strictly, so a client that sends a wrong key or kind hears about it:
///
///     {"collector_id": "…", "responses": [{"response_status": "…", "mode": "…",
///      "userAgent": "…", "start_time"?, "end_time"?, "time_spent"?: integer,
///      "custom_variables"?: {"k": "v"}, "qualityFlags"?: {}, "deviceInfo"?: {},
///      "geoLocation"?: {}, "questions": [{"uuid": "…",
///      "answer": [{"row_id"?, "col_id"?, "text"?}]}]}]}
///
/// Optional members are left out when absent, so null is refused too.
class TovuPayloadValidator
{
public:
    /// The first problem as "<path>: <what is wrong>", e.g.
    /// "responses[0].questions[1].answer[0].row_id: expected string, found integer";
    /// nothing when the payload is good.
    static std::optional<std::string> check(const TovuDevJson::Json &payload);

    TovuPayloadValidator() = delete;
};
