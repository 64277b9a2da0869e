#pragma once

#include <tovukit_io/model/TovuAnswer.h>
#include <tovukit_io/model/TovuQueuedResponse.h>
#include <tovukit_io/model/TovuUserData.h>

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

class TovuClock;

/// What a finished session hands to response assembly.
struct TovuSessionRecord {
    std::string surveyId;
    std::string collectorUUID;
    std::vector<TovuAnswer> answers;
    std::optional<TovuUserData> userData;
    std::string startTime; ///< ISO 8601
    std::int64_t startEpoch = 0; ///< epoch milliseconds
    std::map<std::string, double> timePerQues; ///< seconds by question id
    std::int64_t backTrackCount = 0;
};

/// Turns a finished session into the response that is sent or queued.
namespace TovuResponseAssembly {

/// The respondent's data as the response's custom variables: name, email,
/// phone, unique id, country and city under the backend's keys, then every
/// further pair, which wins over those; empty values are left out and an
/// empty result is nothing.
std::optional<std::map<std::string, std::string>> customVariables(const std::optional<TovuUserData> &userData);

/// The complete response with status `status`, read at `clock`'s now.
TovuQueuedResponse assemble(const TovuSessionRecord &session, std::string status, const TovuClock &clock,
                            std::string responseId);

/// The console block that shows a response before it is sent.
std::vector<std::string> dumpLines(const TovuQueuedResponse &response);

} // namespace TovuResponseAssembly
