#include <tovukit_io/core/TovuResponseAssembly.h>

#include <tovukit_io/platform/TovuClock.h>

#include <cstdio>
#include <utility>

namespace TovuResponseAssembly {

namespace {

void addIfSet(std::map<std::string, std::string> &variables, const char *key, const std::optional<std::string> &value)
{
    if (value && !value->empty())
        variables[key] = *value;
}

TovuQualityFlags qualityFlags(const TovuSessionRecord &session, const TovuClock &clock)
{
    TovuQualityFlags flags;
    for (const auto &[questionId, seconds] : session.timePerQues)
        flags.data.timePerQues[questionId] = TovuQualityFlags::TimeOnQuestion{seconds};
    const double minutes = static_cast<double>(clock.epochMilliseconds() - session.startEpoch) / 60000.0;
    // Total and net are the same on purpose: there is no pause to subtract.
    flags.data.survey.totalTimeDuration = minutes;
    flags.data.survey.netTimeDuration = minutes;
    const QTime local = clock.localTime();
    char curTime[16];
    std::snprintf(curTime, sizeof curTime, "%02d:%02d", local.isValid() ? local.hour() : 0,
                  local.isValid() ? local.minute() : 0);
    flags.data.survey.curTime = curTime;
    flags.data.survey.startTime = session.startEpoch;
    flags.data.survey.backTrackCount = session.backTrackCount;
    return flags;
}

TovuGeolocation geolocation(const std::optional<TovuUserData> &userData)
{
    TovuGeolocation location{"point", {std::nullopt, std::nullopt}, std::nullopt, std::nullopt, std::nullopt};
    if (userData) {
        location.country = userData->country;
        location.city = userData->city;
        location.region = userData->region;
    }
    return location;
}

std::string valueLine(const TovuAnswerValue &value)
{
    return "        rowId: " + value.rowId + " | colId: " + value.colId.value_or("-")
        + " | text: " + value.text.value_or("-");
}

} // namespace

std::optional<std::map<std::string, std::string>> customVariables(const std::optional<TovuUserData> &userData)
{
    if (!userData)
        return std::nullopt;
    std::map<std::string, std::string> variables;
    addIfSet(variables, "fName", userData->name);
    addIfSet(variables, "email", userData->email);
    addIfSet(variables, "mobile", userData->phone);
    addIfSet(variables, "unique_id", userData->uniqueId);
    addIfSet(variables, "country", userData->country);
    addIfSet(variables, "city", userData->city);
    for (const auto &[key, value] : userData->eData.value_or(std::map<std::string, std::string>())) {
        if (!key.empty() && !value.empty())
            variables[key] = value;
    }
    if (variables.empty())
        return std::nullopt;
    return variables;
}

TovuQueuedResponse assemble(const TovuSessionRecord &session, std::string status, const TovuClock &clock,
                            std::string responseId)
{
    TovuQueuedResponse response;
    response.responseId = std::move(responseId);
    response.surveyId = session.surveyId;
    response.collectorUUID = session.collectorUUID;
    response.mode = "iOS SDK";
    response.status = std::move(status);
    response.startTime = session.startTime;
    response.endTime = clock.iso8601Now();
    response.answers = session.answers;
    response.customVariables = customVariables(session.userData);
    response.qualityFlags = qualityFlags(session, clock);
    response.deviceInfo = TovuDeviceInfo{"mobile", "ios", "safari"};
    response.geolocation = geolocation(session.userData);
    return response;
}

std::vector<std::string> dumpLines(const TovuQueuedResponse &response)
{
    std::vector<std::string> lines{
        "━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━━",  ">>> Tovu SDK Response Data:",
        "    responseId    : " + response.responseId,    "    surveyId      : " + response.surveyId,
        "    collectorUUID : " + response.collectorUUID, "    mode       : " + response.mode,
        "    status     : " + response.status,           "    startTime  : " + response.startTime,
        "    endTime    : " + response.endTime,          "    answers    :",
    };
    for (const auto &answer : response.answers) {
        lines.push_back("      questionId: " + answer.questionId);
        for (const auto &value : answer.value)
            lines.push_back(valueLine(value));
    }
    return lines;
}

} // namespace TovuResponseAssembly
