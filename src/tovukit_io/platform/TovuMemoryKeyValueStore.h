#pragma once

#include <tovukit_io/platform/TovuKeyValueStore.h>

#include <map>
#include <string>
#include <variant>

/// A key-value store that lives as long as the object: for tests, and the
/// fallback of a store whose file cannot be used.
class TovuMemoryKeyValueStore : public TovuKeyValueStore
{
public:
    std::optional<QByteArray> data(std::string_view key) const override;
    std::optional<std::int64_t> integer(std::string_view key) const override;
    bool setData(std::string_view key, const QByteArray &value) override;
    bool setInteger(std::string_view key, std::int64_t value) override;
    bool removeValue(std::string_view key) override;
    std::optional<std::uint64_t> revision() const override;

private:
    std::uint64_t m_revision = 0;
    std::map<std::string, std::variant<QByteArray, std::int64_t>, std::less<>> m_values;
};
