#pragma once

#include <tovukit_io/model/TovuRawValue.h>

#include <cstdint>
#include <string_view>

/// Which view shows a question. Stored as the upper-case texts of rawValue().
enum class TovuQuestionType : std::uint8_t {
    singleChoice, ///< "SINGLE_CHOICE"
    multipleChoice, ///< "MULTIPLE_CHOICE"
    dropdown, ///< "DROPDOWN"
    singleTextBox, ///< "SINGLE_TEXT_BOX"
    multipleTextBox, ///< "MULTIPLE_TEXT_BOX"
    nps, ///< "NPS"
    multiNps, ///< "MULTI_NPS"
    rating, ///< "RATING"
    multiRating, ///< "MULTI_RATING"
    thankYou, ///< "THANK_YOU"
};

std::string_view rawValue(TovuQuestionType type);

template<>
std::optional<TovuQuestionType> fromRawValue<TovuQuestionType>(std::string_view text);
