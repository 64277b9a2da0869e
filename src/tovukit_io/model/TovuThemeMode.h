#pragma once

#include <tovukit_io/model/TovuRawValue.h>

#include <cstdint>
#include <string_view>

/// How a survey theme wants to be shown. Stored as the lower-case texts of rawValue().
enum class TovuThemeMode : std::uint8_t {
    light, ///< "light"
    dark, ///< "dark"
    auto_, ///< "auto": follow the system (`auto` is a C++ keyword)
    custom, ///< "custom"
};

std::string_view rawValue(TovuThemeMode mode);

template<>
std::optional<TovuThemeMode> fromRawValue<TovuThemeMode>(std::string_view text);
