// JSON coding of the survey model: required and optional fields, the two
// text-backed enumerations, integer and float fields, and error paths.

#include "TovuCodingAssertions.h"

#include <tovukit_io/model/TovuSurvey.h>
#include <tovukit_io/model/TovuSurveyJson.h>

#include <gtest/gtest.h>

#include <cctype>
#include <functional>
#include <string>
#include <vector>

using namespace TovuCodingAssertions;

namespace {

const Json minimalQuestion = {{"id", "q1"}, {"type", "NPS"}, {"title", "How likely?"}, {"isRequired", true}};

Json surveyWith(std::vector<Json> questions)
{
    return {{"id", "s1"}, {"name", "Survey"}, {"questions", std::move(questions)}};
}

} // namespace

TEST(SurveyModelCoding, MinimalQuestionDecodesAndEncodesToItsFourKeys)
{
    const auto question = decodeJson<TovuQuestion>(minimalQuestion);
    ASSERT_TRUE(question) << question.error().message;
    const TovuQuestion expected{.id = "q1", .type = TovuQuestionType::nps, .title = "How likely?", .isRequired = true};
    EXPECT_EQ(*question, expected);

    const auto encoded = tovuEncode(*question);
    ASSERT_TRUE(encoded);
    // Absent optionals leave no key and no null behind.
    EXPECT_EQ(*encoded, R"({"id":"q1","type":"NPS","title":"How likely?","isRequired":true})");
}

TEST(SurveyModelCoding, NullAndMissingFields)
{
    Json json = minimalQuestion;
    json["isRequired"] = nullptr;
    EXPECT_TRUE(failsWith(decodeJson<TovuQuestion>(json), Code::valueNotFound,
                          "isRequired: required value of TovuQuestion is null"));
    json.erase("isRequired");
    EXPECT_TRUE(failsWith(decodeJson<TovuQuestion>(json), Code::keyNotFound,
                          "isRequired: required key of TovuQuestion is missing"));

    json = minimalQuestion;
    json["subtitle"] = nullptr;
    json["options"] = nullptr;
    json["npsLabels"] = nullptr;
    const auto question = decodeJson<TovuQuestion>(json);
    ASSERT_TRUE(question) << question.error().message;
    EXPECT_FALSE(question->subtitle);
    EXPECT_FALSE(question->options);
    EXPECT_FALSE(question->npsLabels);
    EXPECT_EQ(keysOfText(encodedText(*question)), (std::vector<std::string>{"id", "type", "title", "isRequired"}));

    // An empty string and an empty list are values, not absence.
    json["subtitle"] = "";
    json["options"] = Json::array();
    const auto withEmpty = decodeJson<TovuQuestion>(json);
    ASSERT_TRUE(withEmpty);
    EXPECT_EQ(withEmpty->subtitle, std::string());
    EXPECT_EQ(withEmpty->options, std::vector<TovuChoice>{});
    EXPECT_EQ(encodedText(*withEmpty), R"({"id":"q1","type":"NPS","title":"How likely?","subtitle":"",)"
                                       R"("isRequired":true,"options":[]})");

    // Keys are case-sensitive: "ID" is an unknown key, so "id" is missing.
    json = minimalQuestion;
    json.erase("id");
    json["ID"] = "q1";
    EXPECT_TRUE(failsWith(decodeJson<TovuQuestion>(json), Code::keyNotFound,
                          "id: required key of TovuQuestion is missing"));

    EXPECT_TRUE(failsWith(decodeJson<TovuSurvey>(Json{{"id", "s"}, {"name", "n"}}), Code::keyNotFound,
                          "questions: required key of TovuSurvey is missing"));
    EXPECT_TRUE(failsWith(decodeJson<TovuSurvey>(surveyWith({minimalQuestion, nullptr})), Code::valueNotFound,
                          "questions[1]: expected TovuQuestion object, found null"));
}

TEST(SurveyModelCoding, FieldsAreReadInDeclaredOrderAndTheFirstFailureIsReported)
{
    // Both "id" and "title" are missing and "type" is bad: "id" comes first.
    EXPECT_TRUE(failsWith(decodeJson<TovuQuestion>(Json{{"type", "Bogus"}, {"isRequired", true}}), Code::keyNotFound,
                          "id: required key of TovuQuestion is missing"));
    EXPECT_TRUE(failsWith(decodeJson<TovuQuestion>(Json{{"id", "q"}, {"type", "Bogus"}}), Code::dataCorrupted,
                          R"(type: unknown TovuQuestionType "Bogus")"));
}

TEST(SurveyModelCoding, EmptyQuestionListAndEmptyTheme)
{
    const auto survey = decodeJson<TovuSurvey>(surveyWith({}));
    ASSERT_TRUE(survey) << survey.error().message;
    EXPECT_TRUE(survey->questions.empty());
    EXPECT_FALSE(survey->theme);
    // The required list is written even when empty.
    EXPECT_EQ(encodedText(*survey), R"({"id":"s1","name":"Survey","questions":[]})");

    Json withTheme = surveyWith({});
    withTheme["theme"] = Json::object();
    const auto themed = decodeJson<TovuSurvey>(withTheme);
    ASSERT_TRUE(themed) << themed.error().message;
    EXPECT_EQ(themed->theme, TovuTheme{});
    EXPECT_EQ(encodedText(TovuTheme{}), "{}");

    EXPECT_TRUE(failsWith(decodeJson<TovuSurvey>(Json{{"id", "s"}, {"name", "n"}, {"questions", Json::object()}}),
                          Code::typeMismatch, "questions: expected array, found object"));
}

TEST(SurveyModelCoding, ThemeNumbers)
{
    auto theme = decodeJson<TovuTheme>(Json{{"transparency", 0.5}, {"mode", "auto"}, {"cornerRadius", 3.0}});
    ASSERT_TRUE(theme) << theme.error().message;
    EXPECT_EQ(theme->transparency, 0.5f);
    EXPECT_EQ(theme->mode, TovuThemeMode::auto_);
    EXPECT_EQ(theme->cornerRadius, 3);

    // A whole number written as an exponent is still an integer; negatives are allowed.
    theme = tovuDecode<TovuTheme>(R"({"fontSizeBase":1e3,"toasterHeight":-12,"transparency":1})");
    ASSERT_TRUE(theme) << theme.error().message;
    EXPECT_EQ(theme->fontSizeBase, 1000);
    EXPECT_EQ(theme->toasterHeight, -12);
    EXPECT_EQ(theme->transparency, 1.0f);

    EXPECT_TRUE(failsWith(tovuDecode<TovuTheme>(R"({"cornerRadius":2.5})"), Code::typeMismatch,
                          "cornerRadius: expected integer, found 2.5"));
    EXPECT_TRUE(failsWith(tovuDecode<TovuTheme>(R"({"cornerRadius":"3"})"), Code::typeMismatch,
                          "cornerRadius: expected integer, found string"));
    EXPECT_TRUE(failsWith(tovuDecode<TovuTheme>(R"({"transparency":"0.5"})"), Code::typeMismatch,
                          "transparency: expected number, found string"));
    EXPECT_TRUE(failsWith(tovuDecode<TovuTheme>(R"({"mode":1})"), Code::typeMismatch,
                          "mode: expected string, found integer"));
    EXPECT_TRUE(failsWith(tovuDecode<TovuTheme>(R"({"mode":"Auto"})"), Code::dataCorrupted,
                          R"(mode: unknown TovuThemeMode "Auto")"));

    Json survey = surveyWith({});
    survey["theme"] = {{"animationDuration", 0.25}};
    EXPECT_TRUE(failsWith(decodeJson<TovuSurvey>(survey), Code::typeMismatch,
                          "theme.animationDuration: expected integer, found 0.25"));

    // A float keeps the short form the author wrote rather than its widened double.
    const auto encoded = tovuEncode(TovuTheme{.transparency = 0.2f});
    ASSERT_TRUE(encoded);
    EXPECT_EQ(*encoded, R"({"transparency":0.2})");
    EXPECT_EQ(tovuDecode<TovuTheme>(*encoded), TovuTheme{.transparency = 0.2f});
}

// --- Raw-value tables --------------------------------------------------------

struct QuestionTypeCase {
    TovuQuestionType type;
    const char *text;
};

class QuestionTypeRawValue : public ::testing::TestWithParam<QuestionTypeCase>
{ };

TEST_P(QuestionTypeRawValue, ConvertsBothWaysAndThroughJson)
{
    const auto [type, text] = GetParam();
    EXPECT_EQ(rawValue(type), text);
    EXPECT_EQ(fromRawValue<TovuQuestionType>(text), type);

    Json json = minimalQuestion;
    json["type"] = text;
    const auto question = decodeJson<TovuQuestion>(json);
    ASSERT_TRUE(question) << question.error().message;
    EXPECT_EQ(question->type, type);
    EXPECT_EQ(Json::parse(encodedText(*question))["type"], text);

    // Only the exact text converts.
    std::string lower = text;
    for (char &c : lower)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    std::string mixed = lower;
    mixed[0] = text[0];
    for (const std::string &wrong : {lower, mixed, std::string(text) + " ", " " + std::string(text)}) {
        SCOPED_TRACE(wrong);
        EXPECT_EQ(fromRawValue<TovuQuestionType>(wrong), std::nullopt);
        json["type"] = wrong;
        EXPECT_TRUE(failsWith(decodeJson<TovuQuestion>(json), Code::dataCorrupted,
                              "type: unknown TovuQuestionType \"" + wrong + '"'));
    }
}

INSTANTIATE_TEST_SUITE_P(AllCases, QuestionTypeRawValue,
                         ::testing::Values(QuestionTypeCase{TovuQuestionType::singleChoice, "SINGLE_CHOICE"},
                                           QuestionTypeCase{TovuQuestionType::multipleChoice, "MULTIPLE_CHOICE"},
                                           QuestionTypeCase{TovuQuestionType::dropdown, "DROPDOWN"},
                                           QuestionTypeCase{TovuQuestionType::singleTextBox, "SINGLE_TEXT_BOX"},
                                           QuestionTypeCase{TovuQuestionType::multipleTextBox, "MULTIPLE_TEXT_BOX"},
                                           QuestionTypeCase{TovuQuestionType::nps, "NPS"},
                                           QuestionTypeCase{TovuQuestionType::multiNps, "MULTI_NPS"},
                                           QuestionTypeCase{TovuQuestionType::rating, "RATING"},
                                           QuestionTypeCase{TovuQuestionType::multiRating, "MULTI_RATING"},
                                           QuestionTypeCase{TovuQuestionType::thankYou, "THANK_YOU"}));

TEST(RawValues, ThemeModesConvertExactly)
{
    const std::vector<std::pair<TovuThemeMode, std::string>> modes{{TovuThemeMode::light, "light"},
                                                                   {TovuThemeMode::dark, "dark"},
                                                                   {TovuThemeMode::auto_, "auto"},
                                                                   {TovuThemeMode::custom, "custom"}};
    for (const auto &[mode, text] : modes) {
        SCOPED_TRACE(text);
        EXPECT_EQ(rawValue(mode), text);
        EXPECT_EQ(fromRawValue<TovuThemeMode>(text), mode);
        const auto theme = decodeJson<TovuTheme>(Json{{"mode", text}});
        ASSERT_TRUE(theme);
        EXPECT_EQ(theme->mode, mode);
        EXPECT_EQ(encodedText(*theme), R"({"mode":")" + text + R"("})");
    }
    for (const char *wrong : {"Light", "DARK", "Auto", "automatic", ""})
        EXPECT_EQ(fromRawValue<TovuThemeMode>(wrong), std::nullopt) << wrong;
    // Each enumeration has its own table.
    EXPECT_EQ(fromRawValue<TovuQuestionType>("light"), std::nullopt);
    EXPECT_EQ(fromRawValue<TovuThemeMode>("NPS"), std::nullopt);
    EXPECT_EQ(fromRawValue<TovuQuestionType>(""), std::nullopt);
}

// --- Whole survey ------------------------------------------------------------

namespace {

TovuSurvey fullSurvey()
{
    const std::vector<TovuChoice> options{{"o1", "Café ☕", "cafe"}, {"o2", "Say \"hi\"\\n", "2"}};
    return TovuSurvey{
        .id = "s-1",
        .name = "Everything set",
        .projectId = "p-9",
        .theme = TovuTheme{.transparency = 0.75f,
                           .mode = TovuThemeMode::custom,
                           .primaryColor = "#112233",
                           .secondaryColor = "#445566",
                           .backgroundColor = "rgba(0,0,0,0.5)",
                           .textColor = "#FFFFFF",
                           .fontFamily = "Inter",
                           .fontSizeBase = 15,
                           .toasterHeight = 420,
                           .overlayHeight = -1,
                           .cornerRadius = 12,
                           .animationDuration = 300},
        .questions = {TovuQuestion{
                          .id = "q1",
                          .type = TovuQuestionType::nps,
                          .title = "Recommend us?",
                          .subtitle = "0 to 10",
                          .placeholder = "Type here",
                          .isRequired = true,
                          .options = options,
                          .columns = std::vector<TovuChoice>{{"c1", "Low", "1"}},
                          .npsLabels = TovuNPSLabels{"Never", "Always", "#F00", "#FF0", "#0F0"},
                          .followUpQuestion = "Anything else?",
                          .conditionalFollowUps = std::vector<TovuConditionalFollowUp>{{0, 6, "Why?", "q9",
                                                                                        TovuQuestionType::multipleTextBox,
                                                                                        options},
                                                                                       {7, 10, "Great", {}, {}, {}}},
                          .redirectURL = "https://example.com/done",
                          .ratingStyle = "stars",
                          .showColLabels = false,
                          .ratingColor = "#ABCDEF"},
                      TovuQuestion{.id = "thanks", .type = TovuQuestionType::thankYou, .title = "Bye"}},
        .introPage = TovuSurveyPage{true, "Hello", "Start"},
        .thankYouPage = TovuSurveyPage{false, {}, {}},
    };
}

} // namespace

TEST(SurveyModelCoding, FullSurveyRoundTripsWithFieldsInDeclaredOrder)
{
    const TovuSurvey survey = fullSurvey();
    const auto encoded = tovuEncode(survey);
    ASSERT_TRUE(encoded) << encoded.error().message;
    const auto decoded = tovuDecode<TovuSurvey>(*encoded);
    ASSERT_TRUE(decoded) << decoded.error().message;
    EXPECT_EQ(*decoded, survey);

    const Json json = Json::parse(*encoded);
    using Keys = std::vector<std::string>;
    EXPECT_EQ(keysOf(json),
              (Keys{"id", "name", "projectId", "theme", "questions", "introPage", "thankYouPage"}));
    EXPECT_EQ(keysOf(json["questions"][0]),
              (Keys{"id", "type", "title", "subtitle", "placeholder", "isRequired", "options", "columns", "npsLabels",
                    "followUpQuestion", "conditionalFollowUps", "redirectURL", "ratingStyle", "showColLabels",
                    "ratingColor"}));
    EXPECT_EQ(keysOf(json["theme"]),
              (Keys{"transparency", "mode", "primaryColor", "secondaryColor", "backgroundColor", "textColor",
                    "fontFamily", "fontSizeBase", "toasterHeight", "overlayHeight", "cornerRadius",
                    "animationDuration"}));
    EXPECT_EQ(keysOf(json["questions"][0]["npsLabels"]),
              (Keys{"lower", "upper", "detractorColor", "passiveColor", "promoterColor"}));
    EXPECT_EQ(keysOf(json["questions"][0]["conditionalFollowUps"][0]),
              (Keys{"minRating", "maxRating", "followUpQuestion", "questionId", "followUpType", "followUpOptions"}));
    EXPECT_EQ(keysOf(json["questions"][0]["conditionalFollowUps"][1]),
              (Keys{"minRating", "maxRating", "followUpQuestion"}));
    EXPECT_EQ(keysOf(json["questions"][0]["options"][0]), (Keys{"id", "text", "value"}));
    EXPECT_EQ(keysOf(json["introPage"]), (Keys{"enabled", "content", "buttonText"}));
    EXPECT_EQ(keysOf(json["thankYouPage"]), (Keys{"enabled"}));

    // Values are written as their JSON kinds, enumerations as their texts.
    EXPECT_EQ(json["questions"][0]["type"], "NPS");
    EXPECT_EQ(json["questions"][0]["conditionalFollowUps"][0]["followUpType"], "MULTIPLE_TEXT_BOX");
    EXPECT_EQ(json["theme"]["mode"], "custom");
    EXPECT_TRUE(json["theme"]["cornerRadius"].is_number_integer());
    EXPECT_TRUE(json["questions"][0]["showColLabels"].is_boolean());
    EXPECT_EQ(json["questions"][0]["options"][1]["text"], "Say \"hi\"\\n");
}

TEST(SurveyModelCoding, UnknownKeysAreIgnoredAtEveryLevel)
{
    Json question = minimalQuestion;
    question["extra"] = {{"nested", {1, 2, {{"deep", nullptr}}}}};
    question["options"] = Json::array({{{"id", "o"}, {"text", "t"}, {"value", "v"}, {"score", 3}}});
    question["npsLabels"] = {{"lower", "a"}, {"upper", "b"}, {"midColor", "#000"}};
    Json survey = surveyWith({question});
    survey["version"] = 7;
    survey["theme"] = {{"mode", "dark"}, {"shadow", true}};
    survey["introPage"] = {{"enabled", true}, {"image", "x.png"}};

    const auto decoded = decodeJson<TovuSurvey>(survey);
    ASSERT_TRUE(decoded) << decoded.error().message;
    ASSERT_EQ(decoded->questions.size(), 1u);
    EXPECT_EQ(decoded->questions[0].options, (std::vector<TovuChoice>{{"o", "t", "v"}}));
    EXPECT_EQ(decoded->questions[0].npsLabels, (TovuNPSLabels{.lower = "a", .upper = "b"}));
    EXPECT_EQ(decoded->theme, TovuTheme{.mode = TovuThemeMode::dark});
    EXPECT_EQ(decoded->introPage, TovuSurveyPage{.enabled = true});
    // Nothing unknown is written back.
    const Json reencoded = Json::parse(encodedText(*decoded));
    EXPECT_FALSE(reencoded.contains("version"));
    EXPECT_FALSE(reencoded["questions"][0].contains("extra"));
}

TEST(SurveyModelCoding, ErrorsNameThePathThroughNestedRecordsAndLists)
{
    struct Case {
        const char *name;
        std::function<void(Json &)> damage;
        Code code;
        std::string message;
    };
    const std::vector<Case> cases{
        {"wrong-case type in the fourth question", [](Json &s) { s["questions"][3]["type"] = "Rating"; },
         Code::dataCorrupted, R"(questions[3].type: unknown TovuQuestionType "Rating")"},
        {"unknown follow-up type",
         [](Json &s) { s["questions"][1]["conditionalFollowUps"][0]["followUpType"] = "TEXT"; }, Code::dataCorrupted,
         R"(questions[1].conditionalFollowUps[0].followUpType: unknown TovuQuestionType "TEXT")"},
        {"follow-up option without id",
         [](Json &s) { s["questions"][1]["conditionalFollowUps"][0]["followUpOptions"][1].erase("id"); },
         Code::keyNotFound, "questions[1].conditionalFollowUps[0].followUpOptions[1].id: required key of "
                            "TovuChoice is missing"},
        {"fractional minRating", [](Json &s) { s["questions"][1]["conditionalFollowUps"][0]["minRating"] = 0.5; },
         Code::typeMismatch, "questions[1].conditionalFollowUps[0].minRating: expected integer, found 0.5"},
        {"choice without value", [](Json &s) { s["questions"][0]["options"][1].erase("value"); }, Code::keyNotFound,
         "questions[0].options[1].value: required key of TovuChoice is missing"},
        {"number as label", [](Json &s) { s["questions"][2]["npsLabels"]["lower"] = 0; }, Code::typeMismatch,
         "questions[2].npsLabels.lower: expected string, found integer"},
        {"text as boolean", [](Json &s) { s["questions"][0]["isRequired"] = "true"; }, Code::typeMismatch,
         "questions[0].isRequired: expected boolean, found string"},
        {"optional of the wrong kind", [](Json &s) { s["questions"][2]["showColLabels"] = 1; }, Code::typeMismatch,
         "questions[2].showColLabels: expected boolean, found integer"},
        {"options as object", [](Json &s) { s["questions"][0]["options"] = Json::object(); }, Code::typeMismatch,
         "questions[0].options: expected array, found object"},
        {"choice as text", [](Json &s) { s["questions"][0]["options"][0] = "o1"; }, Code::typeMismatch,
         "questions[0].options[0]: expected TovuChoice object, found string"},
        {"intro page flag", [](Json &s) { s["introPage"]["enabled"] = "yes"; }, Code::typeMismatch,
         "introPage.enabled: expected boolean, found string"},
        {"name as array", [](Json &s) { s["name"] = Json::array(); }, Code::typeMismatch,
         "name: expected string, found array"},
    };
    const Json choice = {{"id", "o1"}, {"text", "One"}, {"value", "1"}};
    Json followUps = Json::array({{{"minRating", 0},
                                   {"maxRating", 6},
                                   {"followUpQuestion", "Why?"},
                                   {"followUpType", "SINGLE_CHOICE"},
                                   {"followUpOptions", {choice, choice}}}});
    Json q0 = minimalQuestion, q1 = minimalQuestion, q2 = minimalQuestion, q3 = minimalQuestion;
    q0["options"] = {choice, choice};
    q1["conditionalFollowUps"] = followUps;
    q2["npsLabels"] = {{"lower", "a"}, {"upper", "b"}};
    Json base = surveyWith({q0, q1, q2, q3});
    base["introPage"] = {{"enabled", true}};
    ASSERT_TRUE(decodeJson<TovuSurvey>(base)) << "the undamaged survey must decode";

    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        Json damaged = base;
        c.damage(damaged);
        EXPECT_TRUE(failsWith(decodeJson<TovuSurvey>(damaged), c.code, c.message));
        // Decoding through nlohmann reports the same problem by exception.
        try {
            (void)damaged.get<TovuSurvey>();
            ADD_FAILURE() << "get<TovuSurvey>() did not throw";
        } catch (const TovuCodingError &error) {
            EXPECT_EQ(error.code(), c.code);
            EXPECT_EQ(error.what(), c.message);
        }
    }
}
