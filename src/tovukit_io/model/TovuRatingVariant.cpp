#include <tovukit_io/model/TovuRatingVariant.h>

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace {

constexpr std::array<std::pair<TovuRatingVariant, std::string_view>, 6> rawValues{{
    {TovuRatingVariant::star, "STAR"},
    {TovuRatingVariant::heart, "HEART"},
    {TovuRatingVariant::circle, "CIRCLE"},
    {TovuRatingVariant::tile, "TILE"},
    {TovuRatingVariant::emoji, "EMOJI"},
    {TovuRatingVariant::numeric, "NUMERIC"},
}};

// The styles survey documents use; "stars" is plural there, and numeric has none.
constexpr std::array<std::pair<std::string_view, TovuRatingVariant>, 5> apiStyles{{
    {"stars", TovuRatingVariant::star},
    {"heart", TovuRatingVariant::heart},
    {"circle", TovuRatingVariant::circle},
    {"tile", TovuRatingVariant::tile},
    {"emoji", TovuRatingVariant::emoji},
}};

// ASCII only: bytes of multi-byte UTF-8 sequences are all above 0x7F and pass unchanged.
std::string asciiLowerCase(std::string_view text)
{
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return lower;
}

} // namespace

std::string_view rawValue(TovuRatingVariant variant)
{
    const auto *found = std::ranges::find(rawValues, variant, &std::pair<TovuRatingVariant, std::string_view>::first);
    return found == rawValues.end() ? std::string_view() : found->second;
}

template<>
std::optional<TovuRatingVariant> fromRawValue<TovuRatingVariant>(std::string_view text)
{
    const auto *found = std::ranges::find(rawValues, text, &std::pair<TovuRatingVariant, std::string_view>::second);
    return found == rawValues.end() ? std::nullopt : std::optional(found->first);
}

TovuRatingVariant ratingVariantFrom(std::optional<std::string_view> apiType)
{
    if (!apiType)
        return TovuRatingVariant::star;
    const std::string style = asciiLowerCase(*apiType);
    const auto *found = std::ranges::find(apiStyles, style, &std::pair<std::string_view, TovuRatingVariant>::first);
    return found == apiStyles.end() ? TovuRatingVariant::star : found->second;
}
