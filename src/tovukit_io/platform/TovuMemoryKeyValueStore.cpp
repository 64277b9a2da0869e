#include <tovukit_io/platform/TovuMemoryKeyValueStore.h>

TovuKeyValueStore::~TovuKeyValueStore() = default;

std::optional<QByteArray> TovuMemoryKeyValueStore::data(std::string_view key) const
{
    const auto it = m_values.find(key);
    if (it == m_values.end() || !std::holds_alternative<QByteArray>(it->second))
        return std::nullopt;
    return std::get<QByteArray>(it->second);
}

std::optional<std::int64_t> TovuMemoryKeyValueStore::integer(std::string_view key) const
{
    const auto it = m_values.find(key);
    if (it == m_values.end() || !std::holds_alternative<std::int64_t>(it->second))
        return std::nullopt;
    return std::get<std::int64_t>(it->second);
}

bool TovuMemoryKeyValueStore::setData(std::string_view key, const QByteArray &value)
{
    m_values.insert_or_assign(std::string(key), value);
    ++m_revision;
    return true;
}

bool TovuMemoryKeyValueStore::setInteger(std::string_view key, std::int64_t value)
{
    m_values.insert_or_assign(std::string(key), value);
    ++m_revision;
    return true;
}

bool TovuMemoryKeyValueStore::removeValue(std::string_view key)
{
    if (const auto it = m_values.find(key); it != m_values.end())
        m_values.erase(it);
    ++m_revision;
    return true;
}

std::optional<std::uint64_t> TovuMemoryKeyValueStore::revision() const
{
    return m_revision;
}
