#include <tovukit_io/model/TovuCodingError.h>

TovuCodingError::TovuCodingError(Code code, std::string reason)
    : std::runtime_error("TovuCodingError")
    , m_code(code)
    , m_reason(std::move(reason))
    , m_message(m_reason)
{ }

void TovuCodingError::prependKey(std::string_view key)
{
    std::string segment(key);
    if (!m_path.empty() && m_path.front() != '[')
        segment += '.';
    prepend(segment);
}

void TovuCodingError::prependIndex(std::size_t index)
{
    std::string segment = '[' + std::to_string(index) + ']';
    if (!m_path.empty() && m_path.front() != '[')
        segment += '.';
    prepend(segment);
}

void TovuCodingError::prepend(const std::string &segment)
{
    m_path.insert(0, segment);
    m_message = m_path + ": " + m_reason;
}

TovuError TovuCodingError::toError() const
{
    return TovuError{std::string(domain), static_cast<int>(m_code), m_message};
}
