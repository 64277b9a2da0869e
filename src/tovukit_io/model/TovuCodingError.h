#pragma once

#include <tovukit_io/model/TovuError.h>

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

/// Thrown by the JSON coding functions of TovuKit's records at the first problem.
///
/// The message names where the problem is and what was wrong, for example
/// `questions[3].type: unknown TovuQuestionType "Rating"`, because survey
/// authors read these messages. tovuDecode() turns it into a TovuError so the
/// exception never leaves the library.
class TovuCodingError : public std::runtime_error
{
public:
    enum class Code {
        invalidJson = 1, ///< the bytes are not JSON
        keyNotFound, ///< a required key is missing
        valueNotFound, ///< a required value is null
        typeMismatch, ///< a value of the wrong JSON kind or range
        dataCorrupted, ///< a value of the right kind that means nothing (an unknown enumeration text)
        limitExceeded, ///< the document is too large or nested too deeply
        invalidValue, ///< a value that cannot be encoded (a non-finite number)
    };

    static constexpr std::string_view domain = "TovuCoding";

    TovuCodingError(Code code, std::string reason);

    Code code() const noexcept { return m_code; }
    /// Where the problem is: `questions[3].type`; empty for the document itself.
    const std::string &path() const noexcept { return m_path; }
    /// What was wrong, without the path.
    const std::string &reason() const noexcept { return m_reason; }
    const char *what() const noexcept override { return m_message.c_str(); }

    /// Called while the exception travels out of nested records, so the path
    /// grows from the failing value outwards.
    void prependKey(std::string_view key);
    void prependIndex(std::size_t index);

    TovuError toError() const;

private:
    void prepend(const std::string &segment);

    Code m_code;
    std::string m_path;
    std::string m_reason;
    std::string m_message;
};
