#pragma once

// Internal: the strict, path-reporting JSON coding shared by every record of
// the library. Not installed; public headers only see <nlohmann/json_fwd.hpp>.
//
// Decoding reads required fields with decodeRequired() and optional ones with
// decodeOptional() (absent or null gives no value); a failure throws a
// TovuCodingError whose path grows as it leaves nested records and lists.
// Encoding writes fields in the order it is called and leaves absent optionals out.

#include <tovukit_io/model/TovuCodingError.h>
#include <tovukit_io/model/TovuDecode.h>
#include <tovukit_io/model/TovuDecodePaths.h>
#include <tovukit_io/model/TovuJsonReader.h>
#include <tovukit_io/model/TovuQuestionType.h>
#include <tovukit_io/model/TovuRawValue.h>
#include <tovukit_io/model/TovuThemeMode.h>

#include <nlohmann/json.hpp>

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <vector>

namespace tovu::json {

using Json = nlohmann::ordered_json;

/// "null", "boolean", "integer", "number", "string", "array" or "object".
std::string_view kindName(const Json &value);

[[noreturn]] void throwMismatch(std::string_view expected, const Json &found);

/// The member named `key` of an object, or nullptr. No allocation.
const Json *member(const Json &object, std::string_view key);

/// Throws unless `value` is an object; `record` names what was expected.
void requireObject(const Json &value, std::string_view record);

/// Refuses documents larger than maxDocumentBytes before any work is done.
void checkDocumentSize(std::string_view text);

/// Parses a whole document into nlohmann's tree, after checking its size and
/// nesting depth.
Json parse(std::string_view text);

inline constexpr std::size_t maxDocumentBytes = std::size_t{64} << 20;
inline constexpr int maxNestingDepth = 64;

// Names used in messages about enumerations; each enum of the library adds one.
std::string_view enumTypeName(TovuQuestionType);
std::string_view enumTypeName(TovuThemeMode);

void decodeValue(const Json &value, std::string &out);
void decodeValue(const Json &value, bool &out);
void decodeValue(const Json &value, std::int64_t &out);
void decodeValue(const Json &value, double &out);
void decodeValue(const Json &value, float &out);

void encodeValue(Json &slot, const std::string &value);
void encodeValue(Json &slot, bool value);
void encodeValue(Json &slot, std::int64_t value);
void encodeValue(Json &slot, double value);
void encodeValue(Json &slot, float value);

// Number rules shared by both decoders. `written` is the number as the
// document wrote it, for the message.
std::int64_t integerFromDouble(double number, std::string_view written);
float floatFromDouble(double number, std::string_view written);

// Streaming decoding, straight from the text (what tovuDecode uses). The
// rules and messages are those of the nlohmann-based decoding above.
[[noreturn]] void throwMismatch(std::string_view expected, TovuJsonReader &reader);
void readValue(TovuJsonReader &reader, std::string &out);
void readValue(TovuJsonReader &reader, bool &out);
void readValue(TovuJsonReader &reader, std::int64_t &out);
void readValue(TovuJsonReader &reader, double &out);
void readValue(TovuJsonReader &reader, float &out);

template<class E>
requires std::is_enum_v<E>
void decodeValue(const Json &value, E &out)
{
    if (!value.is_string())
        throwMismatch("string", value);
    const auto &text = value.get_ref<const std::string &>();
    const std::optional<E> decoded = fromRawValue<E>(text);
    if (!decoded) {
        throw TovuCodingError(TovuCodingError::Code::dataCorrupted,
                              "unknown " + std::string(enumTypeName(E{})) + " \"" + text + '"');
    }
    out = *decoded;
}

template<class E>
requires std::is_enum_v<E>
void encodeValue(Json &slot, E value)
{
    slot = std::string(rawValue(value));
}

// Records: their own from_json / to_json, found by argument-dependent lookup.
template<class T>
requires std::is_class_v<T>
void decodeValue(const Json &value, T &out)
{
    from_json(value, out);
}

template<class T>
requires std::is_class_v<T>
void encodeValue(Json &slot, const T &value)
{
    to_json(slot, value);
}

// An element of a list that may be absent: null in JSON.
template<class T>
void decodeValue(const Json &value, std::optional<T> &out)
{
    if (value.is_null())
        out.reset();
    else
        decodeValue(value, out.emplace());
}

template<class T>
void encodeValue(Json &slot, const std::optional<T> &value)
{
    if (value)
        encodeValue(slot, *value);
    else
        slot = nullptr;
}

template<class T>
void decodeValue(const Json &value, std::vector<T> &out)
{
    if (!value.is_array())
        throwMismatch("array", value);
    out.clear();
    out.reserve(value.size());
    std::size_t index = 0;
    for (const Json &element : value) {
        try {
            decodeValue(element, out.emplace_back());
        } catch (TovuCodingError &error) {
            error.prependIndex(index);
            throw;
        }
        ++index;
    }
}

template<class T>
void encodeValue(Json &slot, const std::vector<T> &values)
{
    slot = Json::array();
    std::size_t index = 0;
    for (const T &value : values) {
        try {
            encodeValue(slot.emplace_back(), value);
        } catch (TovuCodingError &error) {
            error.prependIndex(index);
            throw;
        }
        ++index;
    }
}

template<class T>
void decodeValue(const Json &value, std::map<std::string, T> &out)
{
    if (!value.is_object())
        throwMismatch("object", value);
    out.clear();
    for (auto it = value.begin(); it != value.end(); ++it) {
        try {
            decodeValue(it.value(), out[it.key()]);
        } catch (TovuCodingError &error) {
            error.prependKey(it.key());
            throw;
        }
    }
}

template<class T>
void encodeValue(Json &slot, const std::map<std::string, T> &values)
{
    slot = Json::object();
    for (const auto &[key, value] : values) {
        try {
            encodeValue(slot[key], value);
        } catch (TovuCodingError &error) {
            error.prependKey(key);
            throw;
        }
    }
}

template<class T>
void decodeRequired(const Json &object, std::string_view key, T &out, std::string_view record)
{
    const Json *value = member(object, key);
    try {
        if (!value) {
            throw TovuCodingError(TovuCodingError::Code::keyNotFound,
                                  "required key of " + std::string(record) + " is missing");
        }
        if (value->is_null()) {
            throw TovuCodingError(TovuCodingError::Code::valueNotFound,
                                  "required value of " + std::string(record) + " is null");
        }
        decodeValue(*value, out);
    } catch (TovuCodingError &error) {
        error.prependKey(key);
        throw;
    }
}

template<class T>
void decodeOptional(const Json &object, std::string_view key, std::optional<T> &out)
{
    const Json *value = member(object, key);
    if (!value || value->is_null()) {
        out.reset();
        return;
    }
    try {
        decodeValue(*value, out.emplace());
    } catch (TovuCodingError &error) {
        error.prependKey(key);
        throw;
    }
}

template<class T>
void encodeField(Json &object, std::string_view key, const T &value)
{
    try {
        encodeValue(object[std::string(key)], value);
    } catch (TovuCodingError &error) {
        error.prependKey(key);
        throw;
    }
}

template<class T>
void encodeField(Json &object, std::string_view key, const std::optional<T> &value)
{
    if (value)
        encodeField(object, key, *value);
}

// Records describe their fields once, as a table of keys and members in
// declared order; decoding and encoding are derived from that table.
//
//     template<> struct tovu::json::RecordFields<TovuChoice> {
//         static constexpr std::string_view name = "TovuChoice";
//         static constexpr auto fields = std::tuple{field("id", &TovuChoice::id), ...};
//     };
template<class Record>
struct RecordFields;

template<class T>
inline constexpr bool isOptional = false;
template<class T>
inline constexpr bool isOptional<std::optional<T>> = true;

template<class Record, class Member>
struct Field {
    static constexpr bool optional = isOptional<Member>;
    std::string_view key;
    Member Record::*member;
};

template<class Record, class Member>
constexpr Field<Record, Member> field(std::string_view key, Member Record::*member)
{
    return {key, member};
}

template<class T>
void decodeMember(const Json &object, std::string_view key, T &out, std::string_view record)
{
    decodeRequired(object, key, out, record);
}

template<class T>
void decodeMember(const Json &object, std::string_view key, std::optional<T> &out, std::string_view)
{
    decodeOptional(object, key, out);
}

template<class Record>
void decodeRecord(const Json &json, Record &out)
{
    using Table = RecordFields<Record>;
    requireObject(json, Table::name);
    // Fields are read in declared order and the first failure stops the
    // decoding; `out` changes only once the whole record has been read.
    Record record{};
    std::apply(
        [&](const auto &...fields) { (decodeMember(json, fields.key, record.*(fields.member), Table::name), ...); },
        Table::fields);
    out = std::move(record);
}

template<class Record>
void encodeRecord(Json &json, const Record &value)
{
    json = Json::object();
    std::apply([&](const auto &...fields) { (encodeField(json, fields.key, value.*(fields.member)), ...); },
               RecordFields<Record>::fields);
}

// Declared together first, so that each can read the others' types nested in it.
template<class E>
requires std::is_enum_v<E>
void readValue(TovuJsonReader &reader, E &out);
template<class Record>
requires std::is_class_v<Record>
void readValue(TovuJsonReader &reader, Record &out);
template<class T>
void readValue(TovuJsonReader &reader, std::optional<T> &out);
template<class T>
void readValue(TovuJsonReader &reader, std::vector<T> &out);
template<class T>
void readValue(TovuJsonReader &reader, std::map<std::string, T> &out);

template<class E>
requires std::is_enum_v<E>
void readValue(TovuJsonReader &reader, E &out)
{
    if (reader.peek() != TovuJsonReader::Kind::string)
        throwMismatch("string", reader);
    std::string text;
    reader.readString(text);
    const std::optional<E> decoded = fromRawValue<E>(text);
    if (!decoded) {
        throw TovuCodingError(TovuCodingError::Code::dataCorrupted,
                              "unknown " + std::string(enumTypeName(E{})) + " \"" + text + '"');
    }
    out = *decoded;
}

template<class T>
void readValue(TovuJsonReader &reader, std::optional<T> &out)
{
    if (reader.peek() == TovuJsonReader::Kind::null) {
        reader.readNull();
        out.reset();
    } else {
        readValue(reader, out.emplace());
    }
}

template<class T>
void readValue(TovuJsonReader &reader, std::vector<T> &out)
{
    if (reader.peek() != TovuJsonReader::Kind::array)
        throwMismatch("array", reader);
    out.clear();
    reader.beginArray();
    std::size_t index = 0;
    while (reader.nextElement()) {
        try {
            readValue(reader, out.emplace_back());
        } catch (TovuCodingError &error) {
            error.prependIndex(index);
            throw;
        }
        ++index;
    }
}

template<class T>
void readValue(TovuJsonReader &reader, std::map<std::string, T> &out)
{
    if (reader.peek() != TovuJsonReader::Kind::object)
        throwMismatch("object", reader);
    out.clear();
    reader.beginObject();
    std::string_view key;
    while (reader.nextKey(key)) {
        std::string name(key);
        try {
            readValue(reader, out[name]);
        } catch (TovuCodingError &error) {
            error.prependKey(name);
            throw;
        }
    }
}

template<class T>
void readMember(TovuJsonReader &reader, T &out, std::string_view record)
{
    if (reader.peek() == TovuJsonReader::Kind::null) {
        throw TovuCodingError(TovuCodingError::Code::valueNotFound,
                              "required value of " + std::string(record) + " is null");
    }
    readValue(reader, out);
}

template<class T>
void readMember(TovuJsonReader &reader, std::optional<T> &out, std::string_view)
{
    readValue(reader, out);
}

// Reads the value of field `index` of the table into `record`.
template<class Table, class Record, std::size_t... I>
void readField(TovuJsonReader &reader, Record &record, std::size_t index, std::index_sequence<I...>)
{
    (void)((index == I ? (readMember(reader, record.*(std::get<I>(Table::fields).member), Table::name), true) : false)
           || ...);
}

// The first required field, in declared order, that the object did not have.
template<class Table, std::size_t Count, std::size_t... I>
void checkRequired(const std::bitset<Count> &seen, std::index_sequence<I...>)
{
    const auto check = [&seen](std::size_t index, std::string_view key, bool optional) {
        if (optional || seen.test(index))
            return;
        TovuCodingError error(TovuCodingError::Code::keyNotFound,
                              "required key of " + std::string(Table::name) + " is missing");
        error.prependKey(key);
        throw error;
    };
    (check(I, std::get<I>(Table::fields).key, std::get<I>(Table::fields).optional), ...);
}

template<class Record>
requires std::is_class_v<Record>
void readValue(TovuJsonReader &reader, Record &out)
{
    using Table = RecordFields<Record>;
    constexpr std::size_t count = std::tuple_size_v<std::remove_cvref_t<decltype(Table::fields)>>;
    constexpr auto indexes = std::make_index_sequence<count>();
    static constexpr auto keys = std::apply(
        [](const auto &...fields) { return std::array<std::string_view, count>{fields.key...}; }, Table::fields);

    if (reader.peek() != TovuJsonReader::Kind::object)
        throwMismatch(std::string(Table::name) + " object", reader);
    Record record{};
    std::bitset<count> seen;
    reader.beginObject();
    std::string_view key;
    while (reader.nextKey(key)) {
        std::size_t index = 0;
        while (index < count && keys[index] != key)
            ++index;
        if (index == count) {
            reader.skipValue(); // unknown keys are ignored
            continue;
        }
        try {
            readField<Table>(reader, record, index, indexes);
        } catch (TovuCodingError &error) {
            error.prependKey(keys[index]);
            throw;
        }
        seen.set(index);
    }
    checkRequired<Table>(seen, indexes);
    out = std::move(record);
}

} // namespace tovu::json

/// Defines the nlohmann coding pair of a record from its RecordFields table.
#define TOVU_DEFINE_JSON_CODING(Record)                                                \
    [[maybe_unused]] void to_json(nlohmann::ordered_json &json, const Record &value)   \
    {                                                                                  \
        tovu::json::encodeRecord(json, value);                                         \
    }                                                                                  \
    [[maybe_unused]] void from_json(const nlohmann::ordered_json &json, Record &value) \
    {                                                                                  \
        tovu::json::decodeRecord(json, value);                                         \
    }

namespace tovu::json {

template<class T>
TovuResult<T> decodeThroughTree(std::string_view json)
{
    try {
        T value;
        decodeValue(parse(json), value);
        return value;
    } catch (const TovuCodingError &error) {
        return std::unexpected(error.toError());
    } catch (const std::exception &error) {
        // Out of memory on a huge document, or a fault of nlohmann's: still a
        // decoding failure for the caller, never an exception.
        return std::unexpected(TovuError{std::string(TovuCodingError::domain),
                                         static_cast<int>(TovuCodingError::Code::dataCorrupted), error.what()});
    }
}

template<class T>
std::optional<T> decodeStreaming(std::string_view json)
{
    try {
        checkDocumentSize(json);
        TovuJsonReader reader(json, maxNestingDepth);
        T value;
        readValue(reader, value);
        reader.finish();
        return value;
    } catch (const std::exception &) {
        return std::nullopt;
    }
}

} // namespace tovu::json

template<class T>
TovuResult<T> tovuDecode(std::string_view json)
{
    // Documents that decode take the fast path. One that does not is decoded
    // again through the tree, so its error is the first in declared field
    // order, and a syntax error anywhere wins over a wrong value before it.
    if (std::optional<T> value = tovu::json::decodeStreaming<T>(json))
        return std::move(*value);
    return tovu::json::decodeThroughTree<T>(json);
}

template<class T>
TovuResult<std::string> tovuEncode(const T &value)
{
    try {
        tovu::json::Json json;
        tovu::json::encodeValue(json, value);
        return json.dump();
    } catch (const TovuCodingError &error) {
        return std::unexpected(error.toError());
    } catch (const std::exception &error) {
        return std::unexpected(TovuError{std::string(TovuCodingError::domain),
                                         static_cast<int>(TovuCodingError::Code::invalidValue), error.what()});
    }
}

/// Instantiates tovuDecode and tovuEncode for one type, in the .cpp that owns it.
#define TOVU_INSTANTIATE_CODING(...)                                                               \
    template TovuResult<__VA_ARGS__> tovuDecode<__VA_ARGS__>(std::string_view);                    \
    template TovuResult<std::string> tovuEncode<__VA_ARGS__>(const __VA_ARGS__ &);                 \
    template TovuResult<__VA_ARGS__> tovu::json::decodeThroughTree<__VA_ARGS__>(std::string_view); \
    template std::optional<__VA_ARGS__> tovu::json::decodeStreaming<__VA_ARGS__>(std::string_view);
