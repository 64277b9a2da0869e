#pragma once

#include <expected>
#include <string>

/// A failure reported to the caller: where it comes from (`domain`), a code
/// within that domain and a message meant for people.
///
/// Nothing in TovuKit throws to the host; operations that can fail return a
/// TovuResult or hand one to their completion.
struct TovuError {
    std::string domain;
    int code = 0;
    std::string message;

    /// The text to show or log, as the platform's error description would be.
    const std::string &localizedDescription() const { return message; }

    friend bool operator==(const TovuError &, const TovuError &) = default;
};

/// The value, or the error that prevented it.
template<class T>
using TovuResult = std::expected<T, TovuError>;
