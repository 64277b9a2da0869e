#pragma once

#include <cstdint>
#include <string_view>

class TovuKeyValueStore;

/// Writes one value into the library's standard store. Every write of that
/// store is committed on its own, so the value is on disk when this returns.
class UserDefaultsHelper
{
public:
    static void set(std::int64_t value, std::string_view key);
    /// The store the visit counters live in: TovuUserDefaults::standard().
    static TovuKeyValueStore &store();

    UserDefaultsHelper() = delete;
};
