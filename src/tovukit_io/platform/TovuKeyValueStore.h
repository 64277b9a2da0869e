#pragma once

#include <QByteArray>

#include <cstdint>
#include <optional>
#include <string_view>

/// A small persistent store: under each key a blob, an integer or nothing.
/// The offline response queue and the web survey's visit counters live here.
///
/// Every write is complete or absent after a crash: implementations commit
/// each write on its own. A store that cannot keep data on disk keeps working
/// in memory, so callers never need a failure path; the write functions still
/// say whether the value reached the disk.
///
/// \code
/// auto &store = TovuUserDefaults::standard();
/// store.setInteger("Visits:https://example.com/s/1", 3);
/// if (const auto blob = store.data("com.tovu.offline_responses"))
///     parse(*blob);
/// \endcode
class TovuKeyValueStore
{
public:
    virtual ~TovuKeyValueStore();

    /// The blob under `key`; nothing when the key is unset or holds an integer.
    virtual std::optional<QByteArray> data(std::string_view key) const = 0;
    /// The integer under `key`; nothing when the key is unset or holds a blob.
    virtual std::optional<std::int64_t> integer(std::string_view key) const = 0;

    /// Replaces what `key` holds. Returns whether the value is durable.
    virtual bool setData(std::string_view key, const QByteArray &value) = 0;
    virtual bool setInteger(std::string_view key, std::int64_t value) = 0;
    virtual bool removeValue(std::string_view key) = 0;

    /// A number that moves whenever a value may have changed: on every write
    /// through this object, and on writes by others sharing the storage. While
    /// it stays the same, a caller may keep what it last read instead of
    /// reading it again. Nothing: not tracked, read again every time.
    virtual std::optional<std::uint64_t> revision() const { return std::nullopt; }
};
