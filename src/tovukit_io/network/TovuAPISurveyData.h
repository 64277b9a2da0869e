#pragma once

#include <tovukit_io/model/TovuSurvey.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// The survey document as the survey-management endpoint sends it: blocks of
// question containers, HTML texts and settings per question type. Decoded
// strictly (TovuAPISurveyDataJson.h) and turned into the library's own model
// by TovuAPISurveyData::toNativeSurvey().

struct TovuAPIRowCol {
    std::string uuid;
    std::string text;
    friend bool operator==(const TovuAPIRowCol &, const TovuAPIRowCol &) = default;
};

struct TovuAPIOptions {
    std::vector<TovuAPIRowCol> row;
    std::optional<std::vector<TovuAPIRowCol>> col;
    friend bool operator==(const TovuAPIOptions &, const TovuAPIOptions &) = default;
};

struct TovuAPIHelperText {
    std::optional<std::string> text;
    friend bool operator==(const TovuAPIHelperText &, const TovuAPIHelperText &) = default;
};

struct TovuAPIRequired {
    std::optional<bool> enabled;
    friend bool operator==(const TovuAPIRequired &, const TovuAPIRequired &) = default;
};

struct TovuAPIPlaceholder {
    std::optional<std::string> text;
    friend bool operator==(const TovuAPIPlaceholder &, const TovuAPIPlaceholder &) = default;
};

struct TovuAPINPSColors {
    std::optional<std::string> detractor;
    std::optional<std::string> passive;
    std::optional<std::string> promoter;
    friend bool operator==(const TovuAPINPSColors &, const TovuAPINPSColors &) = default;
};

struct TovuAPINPSSettings {
    std::optional<TovuAPINPSColors> colors;
    std::optional<std::string> leftLabel;
    std::optional<std::string> rightLabel;
    friend bool operator==(const TovuAPINPSSettings &, const TovuAPINPSSettings &) = default;
};

struct TovuAPIScaleRange {
    std::int64_t min = 0;
    std::int64_t max = 0;
    friend bool operator==(const TovuAPIScaleRange &, const TovuAPIScaleRange &) = default;
};

/// A score range of an NPS question and the follow-up questions it leads to.
struct TovuAPIConfigScale {
    std::string uuid;
    TovuAPIScaleRange scale;
    std::optional<bool> enabled;
    std::vector<std::string> qId;
    friend bool operator==(const TovuAPIConfigScale &, const TovuAPIConfigScale &) = default;
};

struct TovuAPIRatingSettings {
    std::optional<std::string> type;
    std::optional<bool> colLabel;
    std::optional<std::string> color;
    std::optional<std::string> position; ///< decoded, not used by the conversion
    friend bool operator==(const TovuAPIRatingSettings &, const TovuAPIRatingSettings &) = default;
};

struct TovuAPISettings {
    std::optional<TovuAPINPSSettings> nps;
    std::optional<std::vector<TovuAPIConfigScale>> configScale;
    std::optional<TovuAPIRatingSettings> rating;
    friend bool operator==(const TovuAPISettings &, const TovuAPISettings &) = default;
};

struct TovuAPIQuestionDef {
    std::string uuid;
    std::optional<std::string> title;
    std::optional<std::string> quesType; ///< "single_choice", "nps_pro", …
    std::optional<TovuAPIHelperText> helperText;
    std::optional<TovuAPIRequired> required;
    std::optional<TovuAPIOptions> options;
    std::optional<TovuAPISettings> settings;
    std::optional<TovuAPIPlaceholder> placeholder;
    friend bool operator==(const TovuAPIQuestionDef &, const TovuAPIQuestionDef &) = default;
};

struct TovuAPIQuestionContainer {
    TovuAPIQuestionDef question;
    friend bool operator==(const TovuAPIQuestionContainer &, const TovuAPIQuestionContainer &) = default;
};

struct TovuAPIBlock {
    std::vector<TovuAPIQuestionContainer> questions;
    friend bool operator==(const TovuAPIBlock &, const TovuAPIBlock &) = default;
};

struct TovuAPIIntroPage {
    bool enabled = false;
    std::optional<std::string> content;
    std::optional<std::string> buttonText;
    friend bool operator==(const TovuAPIIntroPage &, const TovuAPIIntroPage &) = default;
};

struct TovuAPIThankYouPage {
    bool enabled = false;
    std::optional<std::string> content;
    std::optional<std::string> links; ///< address to open after the thank-you page
    friend bool operator==(const TovuAPIThankYouPage &, const TovuAPIThankYouPage &) = default;
};

struct TovuAPISurveyData {
    std::string uuid;
    std::string displayTitle;
    std::optional<std::string> projectId;
    std::vector<TovuAPIBlock> blocks;
    std::optional<TovuAPIIntroPage> introPage;
    std::optional<TovuAPIThankYouPage> thankYouPage;

    /// The survey model for this document. Follow-up questions leave the main
    /// sequence (an "nps_pro" question carries them as conditional follow-ups),
    /// texts lose their HTML, and a closing "thank_you_auto" question is always
    /// appended. Never fails.
    TovuSurvey toNativeSurvey() const;
    friend bool operator==(const TovuAPISurveyData &, const TovuAPISurveyData &) = default;
};

/// The body of the survey-management endpoint.
struct TovuAPIMainResponse {
    TovuAPISurveyData data;
    friend bool operator==(const TovuAPIMainResponse &, const TovuAPIMainResponse &) = default;
};
