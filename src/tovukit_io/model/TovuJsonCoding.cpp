#include <tovukit_io/model/TovuJsonCoding.h>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace tovu::json {

namespace {

using Code = TovuCodingError::Code;

// One pass over the bytes, outside strings, so hostile nesting is refused
// before the parser or any decoder sees it. nlohmann takes a NUL byte for the
// end of the input and would accept whatever follows it; JSON has no such rule.
void checkStructure(std::string_view text)
{
    int depth = 0;
    bool inString = false;
    bool escaped = false;
    for (const char c : text) {
        if (inString) {
            if (escaped)
                escaped = false;
            else if (c == '\\')
                escaped = true;
            else if (c == '"')
                inString = false;
            continue;
        }
        switch (c) {
        case '\0':
            throw TovuCodingError(Code::invalidJson, "invalid JSON: NUL byte outside a string");
        case '"':
            inString = true;
            break;
        case '[':
        case '{':
            if (++depth > maxNestingDepth) {
                throw TovuCodingError(Code::limitExceeded,
                                      "document is nested deeper than " + std::to_string(maxNestingDepth) + " levels");
            }
            break;
        case ']':
        case '}':
            --depth;
            break;
        default:
            break;
        }
    }
}

// nlohmann's messages start with "[json.exception.parse_error.101] "; survey
// authors need only the part after it.
std::string parseErrorReason(const nlohmann::json::exception &error)
{
    std::string_view what = error.what();
    if (const auto close = what.find("] "); what.starts_with("[json.exception.") && close != what.npos)
        what.remove_prefix(close + 2);
    return "invalid JSON: " + std::string(what);
}

void checkFinite(double value)
{
    if (!std::isfinite(value))
        throw TovuCodingError(Code::invalidValue, "cannot encode the non-finite number " + std::to_string(value));
}

} // namespace

std::string_view kindName(const Json &value)
{
    switch (value.type()) {
    case Json::value_t::null:
        return "null";
    case Json::value_t::boolean:
        return "boolean";
    case Json::value_t::number_integer:
    case Json::value_t::number_unsigned:
        return "integer";
    case Json::value_t::number_float:
        return "number";
    case Json::value_t::string:
        return "string";
    case Json::value_t::array:
        return "array";
    case Json::value_t::object:
        return "object";
    case Json::value_t::binary:
    case Json::value_t::discarded:
        break;
    }
    return "value";
}

void throwMismatch(std::string_view expected, const Json &found)
{
    throw TovuCodingError(found.is_null() ? Code::valueNotFound : Code::typeMismatch,
                          "expected " + std::string(expected) + ", found " + std::string(kindName(found)));
}

const Json *member(const Json &object, std::string_view key)
{
    for (const auto &[name, value] : object.get_ref<const Json::object_t &>()) {
        if (name == key)
            return &value;
    }
    return nullptr;
}

void requireObject(const Json &value, std::string_view record)
{
    if (!value.is_object())
        throwMismatch(std::string(record) + " object", value);
}

void checkDocumentSize(std::string_view text)
{
    if (text.size() > maxDocumentBytes) {
        throw TovuCodingError(Code::limitExceeded,
                              "document is " + std::to_string(text.size()) + " bytes, more than the limit of "
                                  + std::to_string(maxDocumentBytes) + " bytes");
    }
}

Json parse(std::string_view text)
{
    checkDocumentSize(text);
    checkStructure(text);
    try {
        return Json::parse(text);
    } catch (const nlohmann::json::exception &error) {
        // Syntax errors, and numbers beyond the range of a double.
        throw TovuCodingError(Code::invalidJson, parseErrorReason(error));
    }
}

void throwMismatch(std::string_view expected, TovuJsonReader &reader)
{
    const std::string_view found = reader.peekKindName();
    throw TovuCodingError(found == "null" ? Code::valueNotFound : Code::typeMismatch,
                          "expected " + std::string(expected) + ", found " + std::string(found));
}

std::int64_t integerFromDouble(double number, std::string_view written)
{
    // 3.0 or 1e3 is a whole number written another way; 2.5 is not an integer.
    // -2^63 itself is refused too: a literal below it rounds to exactly that double.
    constexpr double limit = 9223372036854775808.0; // 2^63
    if (std::trunc(number) != number || number <= -limit || number >= limit)
        throw TovuCodingError(Code::typeMismatch, "expected integer, found " + std::string(written));
    return static_cast<std::int64_t>(number);
}

float floatFromDouble(double number, std::string_view written)
{
    // Numbers that round to the largest float are fine (it is what encoding
    // writes for it); only those that would round to infinity are not.
    constexpr double roundsToInfinity = 0x1.ffffffp127;
    constexpr auto largest = std::numeric_limits<float>::max();
    const double magnitude = std::abs(number);
    if (magnitude >= roundsToInfinity)
        throw TovuCodingError(Code::typeMismatch, "number " + std::string(written) + " does not fit in a 32-bit float");
    if (magnitude > static_cast<double>(largest))
        return number < 0 ? -largest : largest;
    return static_cast<float>(number);
}

void readValue(TovuJsonReader &reader, std::string &out)
{
    if (reader.peek() != TovuJsonReader::Kind::string)
        throwMismatch("string", reader);
    reader.readString(out);
}

void readValue(TovuJsonReader &reader, bool &out)
{
    if (reader.peek() != TovuJsonReader::Kind::boolean)
        throwMismatch("boolean", reader);
    out = reader.readBool();
}

void readValue(TovuJsonReader &reader, std::int64_t &out)
{
    if (reader.peek() != TovuJsonReader::Kind::number)
        throwMismatch("integer", reader);
    const TovuJsonReader::Number number = reader.readNumber();
    if (!number.isInteger) {
        out = integerFromDouble(TovuJsonReader::toDouble(number.text), number.text);
        return;
    }
    const auto result = std::from_chars(number.text.data(), number.text.data() + number.text.size(), out);
    if (result.ec != std::errc())
        throw TovuCodingError(Code::typeMismatch, "integer " + std::string(number.text) + " does not fit in 64 bits");
}

void readValue(TovuJsonReader &reader, double &out)
{
    if (reader.peek() != TovuJsonReader::Kind::number)
        throwMismatch("number", reader);
    out = TovuJsonReader::toDouble(reader.readNumber().text);
}

void readValue(TovuJsonReader &reader, float &out)
{
    if (reader.peek() != TovuJsonReader::Kind::number)
        throwMismatch("number", reader);
    const std::string_view text = reader.readNumber().text;
    out = floatFromDouble(TovuJsonReader::toDouble(text), text);
}

std::string_view enumTypeName(TovuQuestionType)
{
    return "TovuQuestionType";
}

std::string_view enumTypeName(TovuThemeMode)
{
    return "TovuThemeMode";
}

void decodeValue(const Json &value, std::string &out)
{
    if (!value.is_string())
        throwMismatch("string", value);
    out = value.get_ref<const std::string &>();
}

void decodeValue(const Json &value, bool &out)
{
    if (!value.is_boolean())
        throwMismatch("boolean", value);
    out = value.get<bool>();
}

void decodeValue(const Json &value, std::int64_t &out)
{
    switch (value.type()) {
    case Json::value_t::number_integer:
        out = value.get<std::int64_t>();
        return;
    case Json::value_t::number_unsigned: {
        const auto unsignedValue = value.get<std::uint64_t>();
        if (unsignedValue > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()))
            throw TovuCodingError(Code::typeMismatch, "integer " + value.dump() + " does not fit in 64 bits");
        out = static_cast<std::int64_t>(unsignedValue);
        return;
    }
    case Json::value_t::number_float:
        out = integerFromDouble(value.get<double>(), value.dump());
        return;
    default:
        throwMismatch("integer", value);
    }
}

void decodeValue(const Json &value, double &out)
{
    if (!value.is_number())
        throwMismatch("number", value);
    out = value.get<double>();
}

void decodeValue(const Json &value, float &out)
{
    double number = 0;
    decodeValue(value, number);
    out = floatFromDouble(number, value.dump());
}

void encodeValue(Json &slot, const std::string &value)
{
    slot = value;
}

void encodeValue(Json &slot, bool value)
{
    slot = value;
}

void encodeValue(Json &slot, std::int64_t value)
{
    slot = value;
}

void encodeValue(Json &slot, double value)
{
    checkFinite(value);
    slot = value;
}

void encodeValue(Json &slot, float value)
{
    checkFinite(static_cast<double>(value));
    // Widening 0.2f gives 0.20000000298023224; the float's shortest decimal
    // form keeps the document as the author wrote it.
    std::array<char, 32> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    double widened = static_cast<double>(value);
    std::from_chars(buffer.data(), result.ptr, widened);
    slot = widened;
}

} // namespace tovu::json
