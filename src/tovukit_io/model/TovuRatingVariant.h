#pragma once

#include <tovukit_io/model/TovuRawValue.h>

#include <cstdint>
#include <optional>
#include <string_view>

/// The symbol family a rating scale is drawn with. Stored as the upper-case texts of
/// rawValue().
///
/// \code
/// TovuRatingVariant variant = ratingVariantFrom(question.ratingStyle); // "stars" -> star
/// rawValue(TovuRatingVariant::emoji);                                  // "EMOJI"
/// \endcode
enum class TovuRatingVariant : std::uint8_t {
    star, ///< "STAR"
    heart, ///< "HEART"
    circle, ///< "CIRCLE"
    tile, ///< "TILE"
    emoji, ///< "EMOJI"
    numeric, ///< "NUMERIC"
};

std::string_view rawValue(TovuRatingVariant variant);

template<>
std::optional<TovuRatingVariant> fromRawValue<TovuRatingVariant>(std::string_view text);

/// The variant for a survey document's rating style, compared whole and ignoring
/// letter case: "stars" (plural) gives star, "heart", "circle", "tile" and "emoji"
/// give their variants, and any other text, or none, gives star. No text gives
/// numeric: a caller chooses it, or decodes the raw value "NUMERIC".
TovuRatingVariant ratingVariantFrom(std::optional<std::string_view> apiType);
