#pragma once

// Small helpers shared by the coding tests: key lists of encoded objects and
// one assertion for the domain, code and message of a coding failure.

#include <tovukit_io/model/TovuCodingError.h>
#include <tovukit_io/model/TovuDecode.h>
#include <tovukit_io/model/TovuQueuedResponse.h>
#include <tovukit_io/model/TovuSurvey.h>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace TovuCodingAssertions {

using Json = nlohmann::ordered_json;
using Code = TovuCodingError::Code;

inline std::vector<std::string> keysOf(const Json &object)
{
    std::vector<std::string> keys;
    for (auto it = object.begin(); it != object.end(); ++it)
        keys.push_back(it.key());
    return keys;
}

// The keys of an encoded text, in the order they were written.
inline std::vector<std::string> keysOfText(std::string_view text)
{
    return keysOf(Json::parse(text));
}

enum class Match { exact, prefix };

template<class T>
::testing::AssertionResult failsWith(const TovuResult<T> &result, Code code, std::string_view message,
                                     Match match = Match::exact)
{
    if (result)
        return ::testing::AssertionFailure() << "succeeded, expected \"" << message << '"';
    const TovuError &error = result.error();
    const bool messageMatches
        = match == Match::exact ? error.message == message : std::string_view(error.message).starts_with(message);
    if (error.domain != TovuCodingError::domain || error.code != static_cast<int>(code) || !messageMatches) {
        return ::testing::AssertionFailure()
            << "got {" << error.domain << ", " << error.code << ", \"" << error.message << "\"}, expected {"
            << static_cast<int>(code) << ", \"" << message << '"' << (match == Match::prefix ? "..." : "") << '}';
    }
    return ::testing::AssertionSuccess();
}

template<class T>
::testing::AssertionResult failsWithPrefix(const TovuResult<T> &result, Code code, std::string_view prefix)
{
    return failsWith(result, code, prefix, Match::prefix);
}

// The encoded text, or a description of the failure that no expectation matches.
template<class T>
std::string encodedText(const T &value)
{
    const TovuResult<std::string> text = tovuEncode(value);
    return text ? *text : "<encoding failed: " + text.error().message + ">";
}

// A copy of `json` with the value at a JSON pointer replaced, or removed when
// `value` is absent.
inline Json changed(Json json, const std::string &pointer, const std::optional<Json> &value)
{
    const Json::json_pointer at(pointer);
    if (value)
        json[at] = *value;
    else
        json[at.parent_pointer()].erase(at.back());
    return json;
}

// One damaged document and the failure it must produce.
struct Damage {
    std::string pointer;
    std::optional<Json> value; ///< absent: remove the key
    Code code;
    std::string message;
};

template<class T>
TovuResult<T> decodeJson(const Json &json)
{
    return tovuDecode<T>(json.dump());
}

} // namespace TovuCodingAssertions

// Failure output shows records as their JSON rather than as raw bytes.
#define TOVU_PRINT_AS_JSON(Record)                             \
    inline void PrintTo(const Record &value, std::ostream *os) \
    {                                                          \
        *os << TovuCodingAssertions::encodedText(value);       \
    }
TOVU_PRINT_AS_JSON(TovuChoice)
TOVU_PRINT_AS_JSON(TovuNPSLabels)
TOVU_PRINT_AS_JSON(TovuConditionalFollowUp)
TOVU_PRINT_AS_JSON(TovuQuestion)
TOVU_PRINT_AS_JSON(TovuSurveyPage)
TOVU_PRINT_AS_JSON(TovuTheme)
TOVU_PRINT_AS_JSON(TovuSurvey)
TOVU_PRINT_AS_JSON(TovuAnswerValue)
TOVU_PRINT_AS_JSON(TovuAnswer)
TOVU_PRINT_AS_JSON(TovuQualityFlags)
TOVU_PRINT_AS_JSON(TovuGeolocation)
TOVU_PRINT_AS_JSON(TovuQueuedResponse)
#undef TOVU_PRINT_AS_JSON

template<class T>
void PrintTo(const TovuResult<T> &result, std::ostream *os)
{
    if (result)
        *os << ::testing::PrintToString(*result);
    else
        *os << "error \"" << result.error().message << '"';
}
