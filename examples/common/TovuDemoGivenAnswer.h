#pragma once

#include <tovukit_io/model/TovuQuestionType.h>

#include <optional>
#include <string>
#include <vector>

/// What autoplay gave as the answer to one question, worked out from the
/// question and the controls it clicked, so it can be held against what the
/// backend stored.
struct TovuDemoGivenAnswer {
    std::string questionId;
    /// The page's type; none for a follow-up asked on an NPS page.
    std::optional<TovuQuestionType> type;
    /// The stored answer's values, one per value: the row (option, scale or
    /// matrix row) chosen, the column chosen in it, and the text typed. An
    /// empty row id means the library picks one (text boxes without options).
    struct Value {
        std::string rowId;
        std::optional<std::string> colId;
        std::optional<std::string> text;
    };
    std::vector<Value> values;
    /// How a person would say what was answered: "A meal kit", "9", "Good, Great, Okay".
    std::string summary;
};
