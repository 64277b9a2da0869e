#pragma once

#include <optional>
#include <string>
#include <vector>

/// One selected or typed value within an answer.
struct TovuAnswerValue {
    std::string rowId; ///< the option, scale point or sub-question
    std::optional<std::string> colId; ///< the column, for grid-like questions
    std::optional<std::string> text; ///< free text, or the label chosen
    std::optional<std::string> type; ///< a kind tag set by the question view

    friend bool operator==(const TovuAnswerValue &, const TovuAnswerValue &) = default;
};

/// The answer to one question, as a question view reports it.
///
/// \code
/// TovuAnswer answer{.questionId = "q1", .value = {{.rowId = "opt-2"}}};
/// \endcode
struct TovuAnswer {
    std::string questionId;
    std::vector<TovuAnswerValue> value; ///< in the order the view reports them

    friend bool operator==(const TovuAnswer &, const TovuAnswer &) = default;
};
