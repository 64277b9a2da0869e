#pragma once

// Checks shared by the fuzz targets. A broken invariant prints what went wrong
// and aborts, which both libFuzzer and the replay main report as a failure of
// the current input.

#include <tovukit_io/model/TovuDecode.h>
#include <tovukit_io/model/TovuDecodePaths.h>

#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

[[noreturn]] inline void tovuFuzzFail(std::string_view what, std::string_view detail = {})
{
    std::fprintf(stderr, "fuzz check failed: %.*s\n", static_cast<int>(what.size()), what.data());
    if (!detail.empty())
        std::fprintf(stderr, "%.*s\n", static_cast<int>(detail.size()), detail.data());
    std::fflush(stderr);
    std::abort();
}

/// Encodes a decoded value, decodes the text again and requires the same value
/// back, and the same text when that value is encoded once more. Everything a
/// decoder accepts must survive storage: the offline queue and the tools write
/// what they read.
template<class T>
std::string tovuFuzzCheckRoundTrip(const T &value)
{
    TovuResult<std::string> encoded = tovuEncode(value);
    if (!encoded)
        tovuFuzzFail("a decoded value does not encode", encoded.error().localizedDescription());

    const TovuResult<T> decoded = tovuDecode<T>(*encoded);
    if (!decoded)
        tovuFuzzFail("an encoded value does not decode", decoded.error().localizedDescription() + "\n" + *encoded);
    if (!(*decoded == value))
        tovuFuzzFail("the round trip changed the value", *encoded);

    const TovuResult<std::string> again = tovuEncode(*decoded);
    if (!again || *again != *encoded)
        tovuFuzzFail("encoding is not stable", *encoded + "\n" + again.value_or("(failed)"));
    return std::move(*encoded);
}

/// Decodes through both paths behind tovuDecode and requires that whatever the
/// streaming decoder accepts, the tree decoder accepts too, with the same value.
/// (The other way round is allowed: a document the streaming decoder gives up
/// on, such as one with a repeated key whose first value is wrong, is decoded
/// through the tree, which has the final say.)
template<class T>
TovuResult<T> tovuFuzzDecodeBothWays(std::string_view text)
{
    const std::optional<T> streamed = tovu::json::decodeStreaming<T>(text);
    TovuResult<T> tree = tovu::json::decodeThroughTree<T>(text);
    if (streamed && !tree)
        tovuFuzzFail("only the streaming decoder accepts the input", tree.error().localizedDescription());
    if (streamed && !(*streamed == *tree))
        tovuFuzzFail("the two decoders give different values");
    return tree;
}
