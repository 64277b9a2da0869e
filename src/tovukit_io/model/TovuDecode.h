#pragma once

#include <tovukit_io/model/TovuError.h>

#include <string>
#include <string_view>

/// Parses and decodes one JSON document into a record, never throwing.
///
/// \code
/// TovuResult<TovuSurvey> survey = tovuDecode<TovuSurvey>(text);
/// if (!survey)
///     qWarning() << survey.error().localizedDescription(); // "questions[3].type: unknown TovuQuestionType \"Rating\""
/// \endcode
///
/// The error's domain is TovuCodingError::domain and its code a
/// TovuCodingError::Code. Documents larger than 64 MiB or nested deeper than
/// 64 levels are refused before they are parsed.
///
/// Available for every record of the survey model and the response records,
/// for std::vector<TovuQueuedResponse> (the offline queue) and for the
/// backend's survey document (TovuAPIMainResponse).
template<class T>
TovuResult<T> tovuDecode(std::string_view json);

/// Encodes a record as compact JSON. Fails (instead of writing null) for a
/// non-finite number, so a stored document always decodes again.
template<class T>
TovuResult<std::string> tovuEncode(const T &value);

/// Declares that tovuDecode and tovuEncode for a type are compiled once, in
/// the library, so no other translation unit instantiates them.
#define TOVU_DECLARE_CODING(...)                                                       \
    extern template TovuResult<__VA_ARGS__> tovuDecode<__VA_ARGS__>(std::string_view); \
    extern template TovuResult<std::string> tovuEncode<__VA_ARGS__>(const __VA_ARGS__ &);
