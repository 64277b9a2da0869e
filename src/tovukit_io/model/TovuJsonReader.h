#pragma once

// Internal: a pull reader over JSON text, for decoding records straight from
// the bytes. Decoding through a DOM (nlohmann) costs a full tree of
// allocations that is thrown away at once; reading tokens in place and moving
// them into the records makes decoding cheaper than parsing alone.
//
// Strict JSON (RFC 8259): UTF-8 checked in strings, no comments, no trailing
// commas, nesting limited. Every failure throws a TovuCodingError; tovuDecode
// reports a failed document's error from the tree decoding, so these reasons
// stay short.

#include <tovukit_io/model/TovuCodingError.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

class TovuJsonReader
{
public:
    enum class Kind : std::uint8_t { null, boolean, number, string, array, object };

    /// A number token: its text as written, and whether it has no fraction or exponent.
    struct Number {
        std::string_view text;
        bool isInteger = false;
    };

    explicit TovuJsonReader(std::string_view text, int maxNestingDepth);

    /// The kind of the next value; fails at the end of the text or on a
    /// character no value starts with.
    Kind peek();
    /// "null", "boolean", "integer", "number", "string", "array" or "object",
    /// for messages about a value of the wrong kind.
    std::string_view peekKindName();

    /// The value of a number token as a double (tokens out of a double's range
    /// were refused when read; tiny ones become 0 or a subnormal).
    static double toDouble(std::string_view token);

    void readNull();
    bool readBool();
    void readString(std::string &out);
    Number readNumber();

    void beginObject();
    /// The next key of the current object, or false at its end. A key with
    /// escapes is decoded into a buffer of the reader, valid until the next call.
    bool nextKey(std::string_view &key);
    void beginArray();
    /// Whether the current array has another element.
    bool nextElement();

    /// Reads past the next value, checking it as thoroughly as any other.
    void skipValue();
    /// Requires nothing but white space after the document.
    void finish();

    [[noreturn]] void failSyntax(std::string_view reason) const;

private:
    void skipWhitespace();
    char peekChar();
    void expect(char c, std::string_view what);
    void expectLiteral(std::string_view literal);
    void beginContainer(char open, std::string_view what);
    bool nextInContainer(char close);
    std::string_view scanString(std::string &buffer);
    void appendEscape(std::string &out);
    void appendCodeUnitEscape(std::string &out);
    unsigned readHex4();
    void checkUtf8Sequence();
    std::size_t scanNumber(bool &isInteger);

    std::string_view m_text;
    std::size_t m_position = 0;
    int m_depth = 0;
    int m_maxDepth;
    bool m_firstInContainer = false;
    std::string m_keyBuffer;
};
