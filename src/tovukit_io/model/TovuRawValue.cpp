#include <tovukit_io/model/TovuQuestionType.h>
#include <tovukit_io/model/TovuThemeMode.h>

#include <array>
#include <cstddef>
#include <utility>

namespace {

template<class E, std::size_t N>
using RawValueTable = std::array<std::pair<E, std::string_view>, N>;

constexpr RawValueTable<TovuQuestionType, 10> questionTypes{{
    {TovuQuestionType::singleChoice, "SINGLE_CHOICE"},
    {TovuQuestionType::multipleChoice, "MULTIPLE_CHOICE"},
    {TovuQuestionType::dropdown, "DROPDOWN"},
    {TovuQuestionType::singleTextBox, "SINGLE_TEXT_BOX"},
    {TovuQuestionType::multipleTextBox, "MULTIPLE_TEXT_BOX"},
    {TovuQuestionType::nps, "NPS"},
    {TovuQuestionType::multiNps, "MULTI_NPS"},
    {TovuQuestionType::rating, "RATING"},
    {TovuQuestionType::multiRating, "MULTI_RATING"},
    {TovuQuestionType::thankYou, "THANK_YOU"},
}};

constexpr RawValueTable<TovuThemeMode, 4> themeModes{{
    {TovuThemeMode::light, "light"},
    {TovuThemeMode::dark, "dark"},
    {TovuThemeMode::auto_, "auto"},
    {TovuThemeMode::custom, "custom"},
}};

template<class E, std::size_t N>
std::string_view textOf(const RawValueTable<E, N> &table, E value)
{
    for (const auto &[candidate, text] : table) {
        if (candidate == value)
            return text;
    }
    return {};
}

template<class E, std::size_t N>
std::optional<E> valueOf(const RawValueTable<E, N> &table, std::string_view text)
{
    for (const auto &[value, candidate] : table) {
        if (candidate == text)
            return value;
    }
    return std::nullopt;
}

} // namespace

std::string_view rawValue(TovuQuestionType type)
{
    return textOf(questionTypes, type);
}

template<>
std::optional<TovuQuestionType> fromRawValue<TovuQuestionType>(std::string_view text)
{
    return valueOf(questionTypes, text);
}

std::string_view rawValue(TovuThemeMode mode)
{
    return textOf(themeModes, mode);
}

template<>
std::optional<TovuThemeMode> fromRawValue<TovuThemeMode>(std::string_view text)
{
    return valueOf(themeModes, text);
}
