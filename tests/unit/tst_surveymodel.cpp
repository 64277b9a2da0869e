// JSON coding of the survey model: required and optional fields, the two
// text-backed enumerations, integer and float fields, and error paths.

#include "TovuCodingAssertions.h"

#include <tovukit_io/model/TovuSurvey.h>
#include <tovukit_io/model/TovuSurveyJson.h>

#include <gtest/gtest.h>

#include <cctype>
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
    const TovuQuestion expected{.id = "q1", .type = TovuQuestionType::nps, .title = "How likely?", .isRequired = true};
    EXPECT_EQ(decodeJson<TovuQuestion>(minimalQuestion), expected);
    // Absent optionals leave no key and no null behind.
    EXPECT_EQ(encodedText(expected), R"({"id":"q1","type":"NPS","title":"How likely?","isRequired":true})");

    // A null optional is absent; an empty string or list is a value.
    Json json = minimalQuestion;
    json["subtitle"] = nullptr;
    json["options"] = nullptr;
    json["npsLabels"] = nullptr;
    EXPECT_EQ(decodeJson<TovuQuestion>(json), expected);
    json["subtitle"] = "";
    json["options"] = Json::array();
    const auto withEmpty = decodeJson<TovuQuestion>(json);
    ASSERT_TRUE(withEmpty);
    EXPECT_EQ(withEmpty->subtitle, std::string());
    EXPECT_EQ(withEmpty->options, std::vector<TovuChoice>{});
    EXPECT_EQ(encodedText(*withEmpty),
              R"({"id":"q1","type":"NPS","title":"How likely?","subtitle":"",)"
              R"("isRequired":true,"options":[]})");

    // Keys are case-sensitive: "ID" is an unknown key, so "id" is missing.
    json = minimalQuestion;
    json.erase("id");
    json["ID"] = "q1";
    EXPECT_TRUE(
        failsWith(decodeJson<TovuQuestion>(json), Code::keyNotFound, "id: required key of TovuQuestion is missing"));
    // Fields are read in declared order and the first failure is reported.
    EXPECT_TRUE(failsWith(decodeJson<TovuQuestion>(Json{{"type", "Bogus"}}), Code::keyNotFound,
                          "id: required key of TovuQuestion is missing"));
    EXPECT_TRUE(failsWith(decodeJson<TovuQuestion>(Json{{"id", "q"}, {"type", "Bogus"}}), Code::dataCorrupted,
                          R"(type: unknown TovuQuestionType "Bogus")"));
}

TEST(SurveyModelCoding, EmptyQuestionListEmptyThemeAndThemeNumbers)
{
    EXPECT_EQ(decodeJson<TovuSurvey>(surveyWith({})), (TovuSurvey{.id = "s1", .name = "Survey"}));
    // The required list is written even when empty.
    EXPECT_EQ(encodedText(TovuSurvey{.id = "s1", .name = "Survey"}), R"({"id":"s1","name":"Survey","questions":[]})");
    Json withTheme = surveyWith({});
    withTheme["theme"] = Json::object();
    EXPECT_EQ(decodeJson<TovuSurvey>(withTheme), (TovuSurvey{.id = "s1", .name = "Survey", .theme = TovuTheme{}}));
    EXPECT_EQ(encodedText(TovuTheme{}), "{}");

    EXPECT_EQ(tovuDecode<TovuTheme>(R"({"transparency":0.5,"mode":"auto","cornerRadius":3.0})"),
              (TovuTheme{.transparency = 0.5f, .mode = TovuThemeMode::auto_, .cornerRadius = 3}));
    // A whole number written as an exponent is still an integer; negatives are allowed.
    EXPECT_EQ(tovuDecode<TovuTheme>(R"({"transparency":1,"fontSizeBase":1e3,"toasterHeight":-12})"),
              (TovuTheme{.transparency = 1.0f, .fontSizeBase = 1000, .toasterHeight = -12}));

    // A float keeps the short form the author wrote rather than its widened double.
    EXPECT_EQ(encodedText(TovuTheme{.transparency = 0.2f}), R"({"transparency":0.2})");
    EXPECT_EQ(tovuDecode<TovuTheme>(R"({"transparency":0.2})"), TovuTheme{.transparency = 0.2f});
}

TEST(RawValues, QuestionTypesConvertExactlyBothWays)
{
    const std::vector<std::pair<TovuQuestionType, std::string>> types{
        {TovuQuestionType::singleChoice, "SINGLE_CHOICE"},
        {TovuQuestionType::multipleChoice, "MULTIPLE_CHOICE"},
        {TovuQuestionType::dropdown, "DROPDOWN"},
        {TovuQuestionType::singleTextBox, "SINGLE_TEXT_BOX"},
        {TovuQuestionType::multipleTextBox, "MULTIPLE_TEXT_BOX"},
        {TovuQuestionType::nps, "NPS"},
        {TovuQuestionType::multiNps, "MULTI_NPS"},
        {TovuQuestionType::rating, "RATING"},
        {TovuQuestionType::multiRating, "MULTI_RATING"},
        {TovuQuestionType::thankYou, "THANK_YOU"}};
    for (const auto &[type, text] : types) {
        SCOPED_TRACE(text);
        EXPECT_EQ(rawValue(type), text);
        EXPECT_EQ(fromRawValue<TovuQuestionType>(text), type);
        Json json = minimalQuestion;
        json["type"] = text;
        const auto question = decodeJson<TovuQuestion>(json);
        EXPECT_EQ(question.value_or(TovuQuestion{}).type, type);
        EXPECT_EQ(Json::parse(encodedText(question.value_or(TovuQuestion{})))["type"], text);

        // Only the exact text converts.
        std::string lower = text;
        for (char &c : lower)
            c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        const std::string mixed = text.substr(0, 1) + lower.substr(1);
        for (const std::string &wrong : {lower, mixed, text + " ", " " + text}) {
            EXPECT_EQ(fromRawValue<TovuQuestionType>(wrong), std::nullopt) << wrong;
            json["type"] = wrong;
            EXPECT_TRUE(failsWith(decodeJson<TovuQuestion>(json), Code::dataCorrupted,
                                  "type: unknown TovuQuestionType \"" + wrong + '"'));
        }
    }
}

TEST(RawValues, ThemeModesConvertExactlyBothWays)
{
    const std::vector<std::pair<TovuThemeMode, std::string>> modes{{TovuThemeMode::light, "light"},
                                                                   {TovuThemeMode::dark, "dark"},
                                                                   {TovuThemeMode::auto_, "auto"},
                                                                   {TovuThemeMode::custom, "custom"}};
    for (const auto &[mode, text] : modes) {
        SCOPED_TRACE(text);
        EXPECT_EQ(rawValue(mode), text);
        EXPECT_EQ(fromRawValue<TovuThemeMode>(text), mode);
        EXPECT_EQ(decodeJson<TovuTheme>(Json{{"mode", text}}), TovuTheme{.mode = mode});
        EXPECT_EQ(encodedText(TovuTheme{.mode = mode}), R"({"mode":")" + text + R"("})");
    }
    for (const char *wrong : {"Light", "DARK", "Auto", "automatic", ""})
        EXPECT_EQ(fromRawValue<TovuThemeMode>(wrong), std::nullopt) << wrong;
    // Each enumeration has its own table.
    EXPECT_EQ(fromRawValue<TovuQuestionType>("light"), std::nullopt);
    EXPECT_EQ(fromRawValue<TovuThemeMode>("NPS"), std::nullopt);
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
        .questions = {TovuQuestion{.id = "q1",
                                   .type = TovuQuestionType::nps,
                                   .title = "Recommend us?",
                                   .subtitle = "0 to 10",
                                   .placeholder = "Type here",
                                   .isRequired = true,
                                   .options = options,
                                   .columns = std::vector<TovuChoice>{{"c1", "Low", "1"}},
                                   .npsLabels = TovuNPSLabels{"Never", "Always", "#F00", "#FF0", "#0F0"},
                                   .followUpQuestion = "Anything else?",
                                   .conditionalFollowUps
                                   = std::vector<TovuConditionalFollowUp>{{0, 6, "Why?", "q9",
                                                                           TovuQuestionType::multipleTextBox, options},
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
    EXPECT_EQ(keysOf(json), (Keys{"id", "name", "projectId", "theme", "questions", "introPage", "thankYouPage"}));
    EXPECT_EQ(keysOf(json["questions"][0]),
              (Keys{"id", "type", "title", "subtitle", "placeholder", "isRequired", "options", "columns", "npsLabels",
                    "followUpQuestion", "conditionalFollowUps", "redirectURL", "ratingStyle", "showColLabels",
                    "ratingColor"}));
    EXPECT_EQ(
        keysOf(json["theme"]),
        (Keys{"transparency", "mode", "primaryColor", "secondaryColor", "backgroundColor", "textColor", "fontFamily",
              "fontSizeBase", "toasterHeight", "overlayHeight", "cornerRadius", "animationDuration"}));
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
    const Json choice = {{"id", "o1"}, {"text", "One"}, {"value", "1"}};
    Json q0 = minimalQuestion, q1 = minimalQuestion, q2 = minimalQuestion, q3 = minimalQuestion;
    q0["options"] = {choice, choice};
    q1["conditionalFollowUps"] = Json::array({{{"minRating", 0},
                                               {"maxRating", 6},
                                               {"followUpQuestion", "Why?"},
                                               {"followUpType", "SINGLE_CHOICE"},
                                               {"followUpOptions", {choice, choice}}}});
    q2["npsLabels"] = {{"lower", "a"}, {"upper", "b"}};
    Json base = surveyWith({q0, q1, q2, q3});
    base["introPage"] = {{"enabled", true}};
    base["theme"] = {{"transparency", 0.5}, {"mode", "dark"}, {"cornerRadius", 4}};
    ASSERT_TRUE(decodeJson<TovuSurvey>(base)) << "the undamaged survey must decode";

    const std::string followUp = "questions[1].conditionalFollowUps[0].";
    const std::vector<Damage> damages{
        {"/questions/0/isRequired", Json(nullptr), Code::valueNotFound,
         "questions[0].isRequired: required value of TovuQuestion is null"},
        {"/questions/0/isRequired", std::nullopt, Code::keyNotFound,
         "questions[0].isRequired: required key of TovuQuestion is missing"},
        {"/questions", std::nullopt, Code::keyNotFound, "questions: required key of TovuSurvey is missing"},
        {"/questions", Json::object(), Code::typeMismatch, "questions: expected array, found object"},
        {"/questions/2", Json(nullptr), Code::valueNotFound, "questions[2]: expected TovuQuestion object, found null"},
        {"/questions/3/type", "Rating", Code::dataCorrupted, R"(questions[3].type: unknown TovuQuestionType "Rating")"},
        {"/questions/1/conditionalFollowUps/0/followUpType", "TEXT", Code::dataCorrupted,
         followUp + R"(followUpType: unknown TovuQuestionType "TEXT")"},
        {"/questions/1/conditionalFollowUps/0/followUpOptions/1/id", std::nullopt, Code::keyNotFound,
         followUp + "followUpOptions[1].id: required key of TovuChoice is missing"},
        {"/questions/1/conditionalFollowUps/0/minRating", 0.5, Code::typeMismatch,
         followUp + "minRating: expected integer, found 0.5"},
        {"/questions/0/options/1/value", std::nullopt, Code::keyNotFound,
         "questions[0].options[1].value: required key of TovuChoice is missing"},
        {"/questions/0/options/0", "o1", Code::typeMismatch,
         "questions[0].options[0]: expected TovuChoice object, found string"},
        {"/questions/2/npsLabels/lower", 0, Code::typeMismatch,
         "questions[2].npsLabels.lower: expected string, found integer"},
        {"/questions/0/isRequired", "true", Code::typeMismatch,
         "questions[0].isRequired: expected boolean, found string"},
        {"/questions/2/showColLabels", 1, Code::typeMismatch,
         "questions[2].showColLabels: expected boolean, found integer"},
        {"/introPage/enabled", "yes", Code::typeMismatch, "introPage.enabled: expected boolean, found string"},
        {"/name", Json::array(), Code::typeMismatch, "name: expected string, found array"},
        {"/theme/cornerRadius", 2.5, Code::typeMismatch, "theme.cornerRadius: expected integer, found 2.5"},
        {"/theme/cornerRadius", "3", Code::typeMismatch, "theme.cornerRadius: expected integer, found string"},
        {"/theme/transparency", "0.5", Code::typeMismatch, "theme.transparency: expected number, found string"},
        {"/theme/mode", 1, Code::typeMismatch, "theme.mode: expected string, found integer"},
        {"/theme/mode", "Auto", Code::dataCorrupted, R"(theme.mode: unknown TovuThemeMode "Auto")"},
    };
    for (const Damage &d : damages) {
        SCOPED_TRACE(d.pointer);
        const Json damaged = changed(base, d.pointer, d.value);
        EXPECT_TRUE(failsWith(decodeJson<TovuSurvey>(damaged), d.code, d.message));
        // Decoding through nlohmann reports the same problem by exception.
        try {
            (void)damaged.get<TovuSurvey>();
            ADD_FAILURE() << "get<TovuSurvey>() did not throw";
        } catch (const TovuCodingError &error) {
            EXPECT_EQ(error.code(), d.code);
            EXPECT_EQ(error.what(), d.message);
        }
    }
}
