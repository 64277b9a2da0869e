// Hostile or broken input: decoding never throws and says what is wrong.
// Also the console sink every library line goes through.

#include "TovuCodingAssertions.h"

#include <tovukit_io/model/TovuLog.h>
#include <tovukit_io/model/TovuQueuedResponse.h>
#include <tovukit_io/model/TovuQueuedResponseJson.h>
#include <tovukit_io/model/TovuSurvey.h>
#include <tovukit_io/model/TovuSurveyJson.h>
#include <tovukit_io/network/TovuAPISurveyData.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

using namespace TovuCodingAssertions;

namespace {

constexpr std::size_t maxBytes = std::size_t{64} << 20;

// A survey whose unknown key "extra" holds `levels` nested arrays; the
// survey object itself is one more level.
std::string surveyNestedTo(int levels)
{
    const auto count = static_cast<std::size_t>(levels);
    return R"({"id":"s","name":"n","questions":[],"extra":)" + std::string(count, '[') + std::string(count, ']') + "}";
}

} // namespace

TEST(DecodeLimits, MalformedJsonIsReportedNotThrown)
{
    const std::vector<std::string> documents{
        "",
        "   ",
        R"({"id":"s","name":"n","questions":[])",
        R"({"id":"s","name":"n","questions":[]} x)",
        R"({"id":"s","name":"n","questions":[],})",
        R"({'id':'s'})",
        "nul",
        "{\"id\":\"\xC3\x28\",\"name\":\"n\",\"questions\":[]}",
        "\xFF\xFE{}",
        R"({"id":"s\q"})",
        R"({"questions":[1 2]})",
        // A NUL byte ends nothing: text after it is still part of the document.
        std::string("{\"id\":\"s\",\"name\":\"n\",\"questions\":[]}\0x", 38),
        std::string("{\"id\":\"s\0\",\"name\":\"n\",\"questions\":[]}", 37),
    };
    for (const std::string &document : documents) {
        SCOPED_TRACE(testing::PrintToString(document));
        EXPECT_NO_THROW({
            EXPECT_TRUE(failsWithPrefix(tovuDecode<TovuSurvey>(document), Code::invalidJson, "invalid JSON: "));
            EXPECT_TRUE(failsWithPrefix(tovuDecode<std::vector<TovuQueuedResponse>>(document), Code::invalidJson,
                                        "invalid JSON: "));
            EXPECT_TRUE(
                failsWithPrefix(tovuDecode<TovuAPIMainResponse>(document), Code::invalidJson, "invalid JSON: "));
        });
    }
    // Valid UTF-8 beyond ASCII is text like any other.
    const auto survey = tovuDecode<TovuSurvey>(R"({"id":"s","name":"Umfrage \u00fc ✓ 😀","questions":[]})");
    ASSERT_TRUE(survey) << survey.error().message;
    EXPECT_EQ(survey->name, "Umfrage \xC3\xBC \xE2\x9C\x93 \xF0\x9F\x98\x80");
}

TEST(DecodeLimits, WrongTopLevelKindNamesTheRecord)
{
    EXPECT_TRUE(failsWith(tovuDecode<TovuSurvey>("[]"), Code::typeMismatch, "expected TovuSurvey object, found array"));
    EXPECT_TRUE(failsWith(tovuDecode<TovuQueuedResponse>("42"), Code::typeMismatch,
                          "expected TovuQueuedResponse object, found integer"));
    EXPECT_TRUE(
        failsWith(tovuDecode<TovuQuestion>("2.5"), Code::typeMismatch, "expected TovuQuestion object, found number"));
    EXPECT_TRUE(failsWith(tovuDecode<TovuAPIMainResponse>(R"("data")"), Code::typeMismatch,
                          "expected TovuAPIMainResponse object, found string"));
    EXPECT_TRUE(
        failsWith(tovuDecode<TovuTheme>("true"), Code::typeMismatch, "expected TovuTheme object, found boolean"));
    EXPECT_TRUE(
        failsWith(tovuDecode<TovuSurvey>("null"), Code::valueNotFound, "expected TovuSurvey object, found null"));
}

TEST(DecodeLimits, NestingDepthIsLimitedOutsideStrings)
{
    // 64 levels in all, the deepest of them inside an ignored key, are fine.
    const auto accepted = tovuDecode<TovuSurvey>(surveyNestedTo(63));
    ASSERT_TRUE(accepted) << accepted.error().message;
    EXPECT_EQ(accepted->id, "s");

    EXPECT_TRUE(failsWith(tovuDecode<TovuSurvey>(surveyNestedTo(64)), Code::limitExceeded,
                          "document is nested deeper than 64 levels"));
    EXPECT_TRUE(failsWith(tovuDecode<std::vector<TovuQueuedResponse>>(std::string(100000, '[')), Code::limitExceeded,
                          "document is nested deeper than 64 levels"));
    std::string objects;
    for (int i = 0; i < 65; ++i)
        objects += R"({"a":)";
    objects += "1" + std::string(65, '}');
    EXPECT_TRUE(
        failsWith(tovuDecode<TovuTheme>(objects), Code::limitExceeded, "document is nested deeper than 64 levels"));

    // Brackets inside strings are text, also after an escaped quote.
    const std::string brackets = std::string(70, '[') + std::string(70, '{');
    const auto inString = tovuDecode<TovuSurvey>(R"({"id":"s","name":"\")" + brackets + R"(","questions":[]})");
    ASSERT_TRUE(inString) << inString.error().message;
    EXPECT_EQ(inString->name, '"' + brackets);

    // A string that ends in an escaped backslash really ends: what follows counts.
    const std::string afterBackslash
        = R"({"id":"s\\","name":"n","questions":[],"extra":)" + std::string(64, '[') + std::string(64, ']') + "}";
    EXPECT_TRUE(failsWith(tovuDecode<TovuSurvey>(afterBackslash), Code::limitExceeded,
                          "document is nested deeper than 64 levels"));
}

TEST(DecodeLimits, DocumentSizeIsLimited)
{
    const std::string object = R"({"mode":"dark"})";
    std::string document(maxBytes - object.size(), ' ');
    document += object;
    ASSERT_EQ(document.size(), maxBytes);
    const auto atLimit = tovuDecode<TovuTheme>(document);
    ASSERT_TRUE(atLimit) << atLimit.error().message;
    EXPECT_EQ(atLimit->mode, TovuThemeMode::dark);

    document.push_back(' ');
    EXPECT_TRUE(failsWith(tovuDecode<TovuTheme>(document), Code::limitExceeded,
                          "document is 67108865 bytes, more than the limit of 67108864 bytes"));
}

TEST(DecodeLimits, NumbersOutOfRangeAreTypeMismatches)
{
    const auto radius = [](const std::string &number) {
        return tovuDecode<TovuTheme>(R"({"cornerRadius":)" + number + "}");
    };
    EXPECT_EQ(radius("9223372036854775807").value_or(TovuTheme{}).cornerRadius, 9223372036854775807);
    EXPECT_EQ(radius("-9223372036854775808").value_or(TovuTheme{}).cornerRadius,
              std::numeric_limits<std::int64_t>::min());
    for (const char *tooBig : {"18446744073709551616", "18446744073709551615", "9223372036854775808",
                               "-9223372036854775809", "1e19", "-1e30", "1e300"}) {
        SCOPED_TRACE(tooBig);
        EXPECT_TRUE(failsWithPrefix(radius(tooBig), Code::typeMismatch, "cornerRadius: "));
    }

    const auto transparency = [](const std::string &number) {
        return tovuDecode<TovuTheme>(R"({"transparency":)" + number + "}");
    };
    EXPECT_EQ(transparency("3.0e38").value_or(TovuTheme{}).transparency, 3.0e38f);
    for (const char *tooBig : {"1e300", "-1e300", "1e39"}) {
        SCOPED_TRACE(tooBig);
        EXPECT_TRUE(failsWithPrefix(transparency(tooBig), Code::typeMismatch, "transparency: "));
    }
}

TEST(DecodeLimits, NumberBeyondDoubleRangeIsInvalidJson)
{
    // No double holds 1e400: the document is refused like any unreadable JSON.
    EXPECT_TRUE(failsWithPrefix(tovuDecode<TovuGeolocation>(R"({"type":"Point","coordinates":[1e400]})"),
                                Code::invalidJson, "invalid JSON: "));
}

// --- Console ----------------------------------------------------------------

namespace {

// Puts the standard handler back whatever a test does.
struct HandlerReset {
    ~HandlerReset() { TovuLog::setHandler({}); }
};

} // namespace

TEST(Log, HandlerReplacesStandardOutputUntilReset)
{
    const HandlerReset reset;
    testing::internal::CaptureStdout();
    TovuLog::print(">>> Tovu SDK: one");
    TovuLog::print("");
    TovuLog::print("two ✅");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), ">>> Tovu SDK: one\n\ntwo ✅\n");

    std::vector<std::string> lines;
    TovuLog::setHandler([&lines](std::string_view line) { lines.emplace_back(line); });
    testing::internal::CaptureStdout();
    TovuLog::print("first");
    TovuLog::print("second");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(lines, (std::vector<std::string>{"first", "second"}));

    TovuLog::setHandler({});
    testing::internal::CaptureStdout();
    TovuLog::print("back");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "back\n");
    EXPECT_EQ(lines.size(), 2u);
}

TEST(Log, HandlerMayPrintAndReplaceItselfWithoutDeadlock)
{
    const HandlerReset reset;
    std::vector<std::string> lines;
    TovuLog::setHandler([&lines](std::string_view line) {
        lines.emplace_back(line);
        if (line.size() < 4)
            TovuLog::print(std::string(line) + "+");
    });
    TovuLog::print("a");
    EXPECT_EQ(lines, (std::vector<std::string>{"a", "a+", "a++", "a+++"}));

    // A handler that removes itself while running finishes its own call.
    lines.clear();
    TovuLog::setHandler([&lines](std::string_view line) {
        TovuLog::setHandler({});
        lines.emplace_back(line);
    });
    testing::internal::CaptureStdout();
    TovuLog::print("once");
    TovuLog::print("after");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "after\n");
    EXPECT_EQ(lines, std::vector<std::string>{"once"});
}
