#pragma once

// Internal: the two decodings behind tovuDecode, for the fuzz targets that
// check they agree on every input.

#include <tovukit_io/model/TovuError.h>

#include <optional>
#include <string_view>

namespace tovu::json {

/// Parses the whole tree, then decodes it in declared field order; its first
/// error is the one reported for a document.
template<class T>
TovuResult<T> decodeThroughTree(std::string_view json);

/// Decodes straight from the text with no tree; no value when the document fails.
template<class T>
std::optional<T> decodeStreaming(std::string_view json);

} // namespace tovu::json
