#include <tovukit_io/network/TovuSurveyText.h>

#include <array>
#include <cstdint>
#include <utility>

namespace {

// Each entity is replaced everywhere before the next one is looked at.
constexpr std::array<std::pair<std::string_view, std::string_view>, 6> entities{{
    {"&nbsp;", " "},
    {"&amp;", "&"},
    {"&lt;", "<"},
    {"&gt;", ">"},
    {"&quot;", "\""},
    {"&#39;", "'"},
}};

std::string withoutTags(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    std::size_t position = 0;
    while (position < text.size()) {
        const std::size_t open = text.find('<', position);
        if (open == std::string_view::npos)
            break;
        // A tag needs at least one character before its '>', so "<>" stays.
        const std::size_t close = text.find('>', open + 1);
        if (close == std::string_view::npos)
            break;
        if (close == open + 1) {
            result.append(text.substr(position, close - position));
            position = close;
            continue;
        }
        result.append(text.substr(position, open - position));
        position = close + 1;
    }
    result.append(text.substr(position));
    return result;
}

void replaceAll(std::string &text, std::string_view from, std::string_view to)
{
    std::size_t position = text.find(from);
    if (position == std::string::npos)
        return;
    std::string result;
    result.reserve(text.size());
    std::size_t start = 0;
    while (position != std::string::npos) {
        result.append(text, start, position - start);
        result.append(to);
        start = position + from.size();
        position = text.find(from, start);
    }
    result.append(text, start);
    text = std::move(result);
}

bool isSpace(char32_t c)
{
    switch (c) {
    case 0x09:
    case 0x0A:
    case 0x0B:
    case 0x0C:
    case 0x0D:
    case 0x20:
    case 0x85:
    case 0xA0:
    case 0x1680:
    case 0x2028:
    case 0x2029:
    case 0x202F:
    case 0x205F:
    case 0x3000:
        return true;
    default:
        return c >= 0x2000 && c <= 0x200A;
    }
}

// The code point starting at `text[index]`, and its length. Malformed, overlong
// and surrogate sequences count as one non-space unit, so they are kept as they
// are rather than read as a space in disguise.
std::pair<char32_t, std::size_t> codePointAt(std::string_view text, std::size_t index)
{
    constexpr std::pair<char32_t, std::size_t> invalid{0xFFFD, 1};
    const auto lead = static_cast<std::uint8_t>(text[index]);
    if (lead < 0x80)
        return {lead, 1};
    const std::size_t length = (lead >> 5) == 0x6 ? 2 : (lead >> 4) == 0xE ? 3 : (lead >> 3) == 0x1E ? 4 : 0;
    if (length == 0 || index + length > text.size())
        return invalid;
    char32_t value = lead & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<std::uint8_t>(text[index + i]);
        if ((next & 0xC0) != 0x80)
            return invalid;
        value = (value << 6) | (next & 0x3Fu);
    }
    constexpr std::array<char32_t, 5> smallestForLength{0, 0, 0x80, 0x800, 0x10000};
    if (value < smallestForLength[length] || value > 0x10FFFF || (value >= 0xD800 && value <= 0xDFFF))
        return invalid;
    return {value, length};
}

// Start of the code point that ends at `end` (exclusive).
std::size_t previousCodePoint(std::string_view text, std::size_t end)
{
    std::size_t start = end - 1;
    while (start > 0 && end - start < 4 && (static_cast<std::uint8_t>(text[start]) & 0xC0) == 0x80)
        --start;
    return start;
}

} // namespace

namespace TovuSurveyText {

std::string_view trimmed(std::string_view text)
{
    std::size_t begin = 0;
    while (begin < text.size()) {
        const auto [c, length] = codePointAt(text, begin);
        if (!isSpace(c))
            break;
        begin += length;
    }
    std::size_t end = text.size();
    while (end > begin) {
        const std::size_t start = previousCodePoint(text, end);
        const auto [c, length] = codePointAt(text, start);
        if (start + length != end || !isSpace(c))
            break;
        end = start;
    }
    return text.substr(begin, end - begin);
}

std::string clean(std::string_view html)
{
    std::string text = html.find('<') == std::string_view::npos ? std::string(html) : withoutTags(html);
    if (text.find('&') != std::string::npos) {
        for (const auto &[entity, replacement] : entities)
            replaceAll(text, entity, replacement);
    }
    const std::string_view result = trimmed(text);
    if (result.size() == text.size())
        return text;
    return std::string(result);
}

} // namespace TovuSurveyText
