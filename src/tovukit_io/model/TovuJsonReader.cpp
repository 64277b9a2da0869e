#include <tovukit_io/model/TovuJsonReader.h>

#include <charconv>
#include <cmath>
#include <cstdlib>

namespace {

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

std::string describe(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= 0x20 && byte < 0x7F)
        return std::string("'") + c + '\'';
    static constexpr char hex[] = "0123456789ABCDEF";
    return std::string("byte 0x") + hex[byte >> 4] + hex[byte & 0xF];
}

void appendUtf8(std::string &out, char32_t codePoint)
{
    if (codePoint < 0x80) {
        out.push_back(static_cast<char>(codePoint));
    } else if (codePoint < 0x800) {
        out.push_back(static_cast<char>(0xC0 | (codePoint >> 6)));
        out.push_back(static_cast<char>(0x80 | (codePoint & 0x3F)));
    } else if (codePoint < 0x10000) {
        out.push_back(static_cast<char>(0xE0 | (codePoint >> 12)));
        out.push_back(static_cast<char>(0x80 | ((codePoint >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (codePoint & 0x3F)));
    } else {
        out.push_back(static_cast<char>(0xF0 | (codePoint >> 18)));
        out.push_back(static_cast<char>(0x80 | ((codePoint >> 12) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | ((codePoint >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (codePoint & 0x3F)));
    }
}

} // namespace

TovuJsonReader::TovuJsonReader(std::string_view text, int maxNestingDepth)
    : m_text(text)
    , m_maxDepth(maxNestingDepth)
{ }

void TovuJsonReader::failSyntax(std::string_view reason) const
{
    throw TovuCodingError(TovuCodingError::Code::invalidJson, "invalid JSON: " + std::string(reason));
}

void TovuJsonReader::skipWhitespace()
{
    while (m_position < m_text.size()) {
        const char c = m_text[m_position];
        if (c != ' ' && c != '\n' && c != '\r' && c != '\t')
            return;
        ++m_position;
    }
}

char TovuJsonReader::peekChar()
{
    skipWhitespace();
    if (m_position >= m_text.size())
        failSyntax("unexpected end of the document");
    return m_text[m_position];
}

void TovuJsonReader::expect(char c, std::string_view what)
{
    if (peekChar() != c)
        failSyntax("expected " + std::string(what) + ", found " + describe(m_text[m_position]));
    ++m_position;
}

TovuJsonReader::Kind TovuJsonReader::peek()
{
    const char c = peekChar();
    switch (c) {
    case 'n':
        return Kind::null;
    case 't':
    case 'f':
        return Kind::boolean;
    case '"':
        return Kind::string;
    case '[':
        return Kind::array;
    case '{':
        return Kind::object;
    default:
        if (c == '-' || isDigit(c))
            return Kind::number;
        failSyntax("unexpected " + describe(c));
    }
}

std::string_view TovuJsonReader::peekKindName()
{
    switch (peek()) {
    case Kind::null:
        return "null";
    case Kind::boolean:
        return "boolean";
    case Kind::number: {
        bool isInteger = false;
        scanNumber(isInteger);
        return isInteger ? "integer" : "number";
    }
    case Kind::string:
        return "string";
    case Kind::array:
        return "array";
    case Kind::object:
        return "object";
    }
    return "value";
}

void TovuJsonReader::expectLiteral(std::string_view literal)
{
    if (m_text.substr(m_position, literal.size()) != literal)
        failSyntax("invalid literal, expected " + std::string(literal));
    m_position += literal.size();
}

void TovuJsonReader::readNull()
{
    peek();
    expectLiteral("null");
}

bool TovuJsonReader::readBool()
{
    if (peekChar() == 't') {
        expectLiteral("true");
        return true;
    }
    expectLiteral("false");
    return false;
}

// Well-formed UTF-8 only (RFC 3629): no overlong forms, no surrogates, nothing
// above U+10FFFF.
void TovuJsonReader::checkUtf8Sequence()
{
    const auto byte = [this](std::size_t offset) {
        return m_position + offset < m_text.size() ? static_cast<unsigned char>(m_text[m_position + offset]) : 0u;
    };
    const unsigned lead = byte(0);
    std::size_t length = 0;
    unsigned low = 0x80;
    unsigned high = 0xBF;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        low = lead == 0xE0 ? 0xA0 : 0x80;
        high = lead == 0xED ? 0x9F : 0xBF;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        low = lead == 0xF0 ? 0x90 : 0x80;
        high = lead == 0xF4 ? 0x8F : 0xBF;
    } else {
        failSyntax("invalid UTF-8 in a string");
    }
    const unsigned second = byte(1);
    if (second < low || second > high)
        failSyntax("invalid UTF-8 in a string");
    for (std::size_t i = 2; i < length; ++i) {
        if ((byte(i) & 0xC0) != 0x80)
            failSyntax("invalid UTF-8 in a string");
    }
    m_position += length;
}

unsigned TovuJsonReader::readHex4()
{
    if (m_position + 4 > m_text.size())
        failSyntax("incomplete \\u escape");
    unsigned value = 0;
    for (int i = 0; i < 4; ++i) {
        const char c = m_text[m_position++];
        value <<= 4;
        if (isDigit(c))
            value |= static_cast<unsigned>(c - '0');
        else if (c >= 'a' && c <= 'f')
            value |= static_cast<unsigned>(c - 'a' + 10);
        else if (c >= 'A' && c <= 'F')
            value |= static_cast<unsigned>(c - 'A' + 10);
        else
            failSyntax("invalid \\u escape");
    }
    return value;
}

void TovuJsonReader::appendCodeUnitEscape(std::string &out)
{
    const unsigned unit = readHex4();
    if (unit >= 0xDC00 && unit <= 0xDFFF)
        failSyntax("lone low surrogate in a \\u escape");
    if (unit < 0xD800 || unit > 0xDBFF) {
        appendUtf8(out, unit);
        return;
    }
    if (m_text.substr(m_position, 2) != "\\u")
        failSyntax("high surrogate not followed by a low surrogate");
    m_position += 2;
    const unsigned second = readHex4();
    if (second < 0xDC00 || second > 0xDFFF)
        failSyntax("high surrogate not followed by a low surrogate");
    appendUtf8(out, 0x10000 + ((unit - 0xD800) << 10) + (second - 0xDC00));
}

void TovuJsonReader::appendEscape(std::string &out)
{
    ++m_position; // the backslash
    if (m_position >= m_text.size())
        failSyntax("unterminated string");
    const char c = m_text[m_position++];
    switch (c) {
    case '"':
    case '\\':
    case '/':
        out.push_back(c);
        return;
    case 'b':
        out.push_back('\b');
        return;
    case 'f':
        out.push_back('\f');
        return;
    case 'n':
        out.push_back('\n');
        return;
    case 'r':
        out.push_back('\r');
        return;
    case 't':
        out.push_back('\t');
        return;
    case 'u':
        appendCodeUnitEscape(out);
        return;
    default:
        --m_position;
        failSyntax("invalid escape \\" + std::string(1, c));
    }
}

std::string_view TovuJsonReader::scanString(std::string &buffer)
{
    expect('"', "a string");
    std::size_t runStart = m_position;
    bool buffered = false;
    for (;;) {
        if (m_position >= m_text.size())
            failSyntax("unterminated string");
        const auto c = static_cast<unsigned char>(m_text[m_position]);
        if (c == '"') {
            const std::string_view run = m_text.substr(runStart, m_position - runStart);
            ++m_position;
            if (!buffered)
                return run;
            buffer.append(run);
            return buffer;
        }
        if (c == '\\') {
            if (!buffered) {
                buffer.clear();
                buffered = true;
            }
            buffer.append(m_text.substr(runStart, m_position - runStart));
            appendEscape(buffer);
            runStart = m_position;
        } else if (c < 0x20) {
            failSyntax("control character in a string");
        } else if (c < 0x80) {
            ++m_position;
        } else {
            checkUtf8Sequence();
        }
    }
}

void TovuJsonReader::readString(std::string &out)
{
    const std::string_view text = scanString(out);
    // Without escapes the text is still in the document; with them it is in `out` already.
    if (text.data() != out.data())
        out.assign(text);
}

std::size_t TovuJsonReader::scanNumber(bool &isInteger)
{
    std::size_t p = m_position;
    const auto at = [this](std::size_t i) {
        return i < m_text.size() ? m_text[i] : '\0';
    };
    const auto digits = [&](std::string_view what) {
        if (!isDigit(at(p))) {
            m_position = p;
            failSyntax("invalid number: expected a digit" + std::string(what));
        }
        while (isDigit(at(p)))
            ++p;
    };
    isInteger = true;
    if (at(p) == '-')
        ++p;
    if (at(p) == '0')
        ++p;
    else
        digits("");
    if (at(p) == '.') {
        isInteger = false;
        ++p;
        digits(" after the decimal point");
    }
    if (at(p) == 'e' || at(p) == 'E') {
        isInteger = false;
        ++p;
        if (at(p) == '+' || at(p) == '-')
            ++p;
        digits(" in the exponent");
    }
    return p;
}

double TovuJsonReader::toDouble(std::string_view token)
{
    double value = 0;
    const auto result = std::from_chars(token.data(), token.data() + token.size(), value);
    if (result.ec == std::errc::result_out_of_range)
        return std::strtod(std::string(token).c_str(), nullptr);
    return value;
}

TovuJsonReader::Number TovuJsonReader::readNumber()
{
    peek();
    Number number;
    const std::size_t end = scanNumber(number.isInteger);
    number.text = m_text.substr(m_position, end - m_position);
    // Integers of up to 18 digits always fit; anything else must not overflow a double.
    if ((!number.isInteger || number.text.size() > 18) && std::isinf(toDouble(number.text)))
        failSyntax("number " + std::string(number.text) + " is out of range");
    m_position = end;
    return number;
}

void TovuJsonReader::beginContainer(char open, std::string_view what)
{
    if (peekChar() != open)
        failSyntax("expected " + std::string(what));
    if (++m_depth > m_maxDepth) {
        throw TovuCodingError(TovuCodingError::Code::limitExceeded,
                              "document is nested deeper than " + std::to_string(m_maxDepth) + " levels");
    }
    ++m_position;
    m_firstInContainer = true;
}

bool TovuJsonReader::nextInContainer(char close)
{
    if (peekChar() == close) {
        ++m_position;
        --m_depth;
        m_firstInContainer = false;
        return false;
    }
    if (!m_firstInContainer)
        expect(',', close == '}' ? "',' or '}'" : "',' or ']'");
    m_firstInContainer = false;
    return true;
}

void TovuJsonReader::beginObject()
{
    beginContainer('{', "an object");
}

void TovuJsonReader::beginArray()
{
    beginContainer('[', "an array");
}

bool TovuJsonReader::nextKey(std::string_view &key)
{
    if (!nextInContainer('}'))
        return false;
    if (peekChar() != '"')
        failSyntax("expected a key in quotes, found " + describe(m_text[m_position]));
    key = scanString(m_keyBuffer);
    expect(':', "':'");
    return true;
}

bool TovuJsonReader::nextElement()
{
    return nextInContainer(']');
}

void TovuJsonReader::skipValue()
{
    switch (peek()) {
    case Kind::null:
        readNull();
        return;
    case Kind::boolean:
        readBool();
        return;
    case Kind::number:
        readNumber();
        return;
    case Kind::string: {
        std::string scratch;
        scanString(scratch);
        return;
    }
    case Kind::array:
        beginArray();
        while (nextElement())
            skipValue();
        return;
    case Kind::object: {
        beginObject();
        std::string_view key;
        while (nextKey(key))
            skipValue();
        return;
    }
    }
}

void TovuJsonReader::finish()
{
    skipWhitespace();
    if (m_position != m_text.size())
        failSyntax("unexpected " + describe(m_text[m_position]) + " after the document");
}
