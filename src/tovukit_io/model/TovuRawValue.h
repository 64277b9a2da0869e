#pragma once

#include <optional>
#include <string_view>

/// Text-backed enumerations: `rawValue(e)` gives the text a case is stored as,
/// `fromRawValue<E>(text)` the case for a text. Conversion is exact and
/// case-sensitive; any other text yields no value.
///
/// \code
/// auto type = fromRawValue<TovuQuestionType>("NPS"); // TovuQuestionType::nps
/// rawValue(TovuQuestionType::multiNps);               // "MULTI_NPS"
/// \endcode
template<class E>
std::optional<E> fromRawValue(std::string_view text);
