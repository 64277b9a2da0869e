#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

/// Timing and answer-pattern data of one session.
struct TovuQualityFlags {
    /// Time spent on one question, in seconds.
    struct TimeOnQuestion {
        double timeOnQues = 0;

        friend bool operator==(const TimeOnQuestion &, const TimeOnQuestion &) = default;
    };

    /// Whole-session timing; durations in minutes.
    struct SurveyTiming {
        double totalTimeDuration = 0;
        double netTimeDuration = 0;
        std::string curTime;
        std::int64_t startTime = 0; ///< epoch milliseconds
        std::int64_t backTrackCount = 0;

        friend bool operator==(const SurveyTiming &, const SurveyTiming &) = default;
    };

    struct QualityData {
        std::map<std::string, TimeOnQuestion> timePerQues; ///< by question id
        SurveyTiming survey;

        friend bool operator==(const QualityData &, const QualityData &) = default;
    };

    struct StraightLining {
        std::vector<std::string> questionList; ///< question ids

        friend bool operator==(const StraightLining &, const StraightLining &) = default;
    };

    QualityData data;
    StraightLining straightLining;

    friend bool operator==(const TovuQualityFlags &, const TovuQualityFlags &) = default;
};
