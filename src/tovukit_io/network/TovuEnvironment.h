#pragma once

#include <tovukit_io/model/TovuRawValue.h>

#include <cstdint>
#include <string_view>

/// Which backend family a zone's hosts belong to.
enum class TovuEnvironment : std::uint8_t {
    production, ///< "production"
    uat, ///< "uat"
};

std::string_view rawValue(TovuEnvironment environment);

template<>
std::optional<TovuEnvironment> fromRawValue<TovuEnvironment>(std::string_view text);
