#pragma once

#include <tovukit_io/model/TovuQuestionType.h>
#include <tovukit_io/model/TovuThemeMode.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// The survey model: the library's own description of one survey, built from the
// backend's document and walked question by question by the survey manager.
// Plain values; lists keep their order, which is the display order.
// JSON coding lives in TovuSurveyJson.h.

/// One answer option, one matrix row or one matrix column.
struct TovuChoice {
    std::string id; ///< what answers report as row or column id
    std::string text; ///< label shown to the respondent
    std::string value; ///< the option's value as the survey defines it

    friend bool operator==(const TovuChoice &, const TovuChoice &) = default;
};

/// End labels and band colours of an NPS scale.
struct TovuNPSLabels {
    std::string lower; ///< under the low end (0)
    std::string upper; ///< under the high end (10)
    std::optional<std::string> detractorColor;
    std::optional<std::string> passiveColor;
    std::optional<std::string> promoterColor;

    friend bool operator==(const TovuNPSLabels &, const TovuNPSLabels &) = default;
};

/// A follow-up question asked when a score falls in [minRating, maxRating].
struct TovuConditionalFollowUp {
    std::int64_t minRating = 0;
    std::int64_t maxRating = 0;
    std::string followUpQuestion;
    std::optional<std::string> questionId; ///< id the follow-up's answer is reported under
    std::optional<TovuQuestionType> followUpType;
    std::optional<std::vector<TovuChoice>> followUpOptions;

    friend bool operator==(const TovuConditionalFollowUp &, const TovuConditionalFollowUp &) = default;
};

/// One page of the survey.
struct TovuQuestion {
    std::string id;
    TovuQuestionType type = TovuQuestionType::singleChoice;
    std::string title;
    std::optional<std::string> subtitle;
    std::optional<std::string> placeholder;
    bool isRequired = false;
    std::optional<std::vector<TovuChoice>> options; ///< options, or the rows of a matrix
    std::optional<std::vector<TovuChoice>> columns; ///< columns of a matrix
    std::optional<TovuNPSLabels> npsLabels;
    std::optional<std::string> followUpQuestion;
    std::optional<std::vector<TovuConditionalFollowUp>> conditionalFollowUps;
    std::optional<std::string> redirectURL; ///< opened shortly after a thank-you page built from this question
    std::optional<std::string> ratingStyle; ///< "stars", "heart", "emoji", … as the document gives it
    std::optional<bool> showColLabels;
    std::optional<std::string> ratingColor;

    friend bool operator==(const TovuQuestion &, const TovuQuestion &) = default;
};

/// The intro or the thank-you page.
struct TovuSurveyPage {
    bool enabled = false;
    std::optional<std::string> content;
    std::optional<std::string> buttonText;

    friend bool operator==(const TovuSurveyPage &, const TovuSurveyPage &) = default;
};

/// The survey author's theme; every field is optional.
struct TovuTheme {
    std::optional<float> transparency; ///< opacity of the sheet background, 0..1
    std::optional<TovuThemeMode> mode;
    std::optional<std::string> primaryColor;
    std::optional<std::string> secondaryColor;
    std::optional<std::string> backgroundColor;
    std::optional<std::string> textColor;
    std::optional<std::string> fontFamily;
    std::optional<std::int64_t> fontSizeBase;
    std::optional<std::int64_t> toasterHeight;
    std::optional<std::int64_t> overlayHeight;
    std::optional<std::int64_t> cornerRadius;
    std::optional<std::int64_t> animationDuration;

    friend bool operator==(const TovuTheme &, const TovuTheme &) = default;
};

/// The root of the survey model.
struct TovuSurvey {
    std::string id; ///< the response's surveyId
    std::string name;
    std::optional<std::string> projectId;
    std::optional<TovuTheme> theme;
    std::vector<TovuQuestion> questions; ///< in the order they are asked; may be empty
    std::optional<TovuSurveyPage> introPage; ///< shown only when present and enabled
    std::optional<TovuSurveyPage> thankYouPage; ///< shown only when present and enabled

    friend bool operator==(const TovuSurvey &, const TovuSurvey &) = default;
};
