// The backend's survey document: strict decoding and its conversion into the
// survey model (type mapping, text cleaning, follow-ups, closing question).

#include "TovuCodingAssertions.h"

#include <tovukit_io/network/TovuAPISurveyData.h>
#include <tovukit_io/network/TovuAPISurveyDataJson.h>
#include <tovukit_io/network/TovuSurveyText.h>

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

using namespace TovuCodingAssertions;

namespace {

using Choices = std::vector<TovuChoice>;

Json question(const std::string &uuid, const std::string &quesType, const std::string &title)
{
    return {{"uuid", uuid}, {"quesType", quesType}, {"title", title}};
}

Json rows(std::vector<std::pair<std::string, std::string>> entries)
{
    Json list = Json::array();
    for (auto &[uuid, text] : entries)
        list.push_back({{"uuid", uuid}, {"text", text}});
    return list;
}

Json configScale(const std::string &uuid, int min, int max, std::optional<bool> enabled, std::vector<std::string> qIds)
{
    Json entry = {{"uuid", uuid}, {"scale", {{"min", min}, {"max", max}}}, {"qId", qIds}};
    if (enabled)
        entry["enabled"] = *enabled;
    return entry;
}

// A document whose blocks hold the given questions, one list per block.
Json document(const std::vector<std::vector<Json>> &blocks)
{
    Json data = {{"uuid", "survey-1"}, {"displayTitle", "Survey"}, {"blocks", Json::array()}};
    for (const auto &questions : blocks) {
        Json containers = Json::array();
        for (const Json &q : questions)
            containers.push_back({{"question", q}});
        data["blocks"].push_back({{"questions", containers}});
    }
    return data;
}

TovuSurvey convert(const Json &data)
{
    const auto decoded = decodeJson<TovuAPIMainResponse>(Json{{"data", data}});
    EXPECT_TRUE(decoded) << decoded.error().message;
    return decoded ? decoded->data.toNativeSurvey() : TovuSurvey{};
}

std::vector<std::string> questionIds(const TovuSurvey &survey)
{
    std::vector<std::string> ids;
    for (const TovuQuestion &q : survey.questions)
        ids.push_back(q.id);
    return ids;
}

} // namespace

// --- Question types ----------------------------------------------------------

struct TypeCase {
    std::optional<std::string> quesType;
    TovuQuestionType expected;
};

void PrintTo(const TypeCase &c, std::ostream *os)
{
    *os << (c.quesType ? '"' + *c.quesType + '"' : std::string("absent"));
}

class QuestionTypeMapping : public ::testing::TestWithParam<TypeCase>
{
};

TEST_P(QuestionTypeMapping, MapsDocumentTypesAndFallsBackToSingleChoice)
{
    const auto &[quesType, expected] = GetParam();
    Json q = {{"uuid", "q1"}, {"title", "T"}};
    if (quesType)
        q["quesType"] = *quesType;
    const TovuSurvey survey = convert(document({{q}}));
    ASSERT_EQ(survey.questions.size(), 2u);
    EXPECT_EQ(survey.questions[0].type, expected);

    // The same table gives the type of a follow-up question.
    Json parent = question("p", "nps_pro", "Score?");
    parent["settings"] = {{"configScale", {configScale("c", 0, 6, true, {"q1"})}}};
    const TovuSurvey withParent = convert(document({{parent, q}}));
    ASSERT_EQ(withParent.questions.size(), 2u);
    const auto &followUps = withParent.questions[0].conditionalFollowUps;
    ASSERT_TRUE(followUps);
    ASSERT_EQ(followUps->size(), 1u);
    EXPECT_EQ(followUps->front().followUpType, expected);
}

INSTANTIATE_TEST_SUITE_P(
    AllTypes, QuestionTypeMapping,
    ::testing::Values(
        TypeCase{"single_choice", TovuQuestionType::singleChoice},
        TypeCase{"multi_choice", TovuQuestionType::multipleChoice}, TypeCase{"dropdown", TovuQuestionType::dropdown},
        TypeCase{"single_text", TovuQuestionType::singleTextBox},
        TypeCase{"multi_text", TovuQuestionType::multipleTextBox}, TypeCase{"nps", TovuQuestionType::nps},
        TypeCase{"nps_pro", TovuQuestionType::nps}, TypeCase{"multi_nps", TovuQuestionType::multiNps},
        TypeCase{"rating", TovuQuestionType::rating}, TypeCase{"rating_pro", TovuQuestionType::rating},
        TypeCase{"multi_rating", TovuQuestionType::multiRating},
        // Unknown, differently written or missing types are shown, as single choice.
        TypeCase{"ranking", TovuQuestionType::singleChoice}, TypeCase{"NPS", TovuQuestionType::singleChoice},
        TypeCase{"MULTI_RATING", TovuQuestionType::singleChoice}, TypeCase{"nps ", TovuQuestionType::singleChoice},
        TypeCase{"", TovuQuestionType::singleChoice}, TypeCase{std::nullopt, TovuQuestionType::singleChoice}));

// --- Question fields ---------------------------------------------------------

TEST(SurveyDocument, QuestionFieldsAreTakenOverCleanedOrUnchanged)
{
    Json full = question("q1", "multi_rating", "<p>Rate&nbsp;us</p>\n");
    full["helperText"] = {{"text", "<b>Keep</b> &amp; as is "}};
    full["placeholder"] = {{"text", " &lt;type&gt; "}};
    full["required"] = {{"enabled", true}};
    full["options"] = {{"row", rows({{"r1", "<i>Fast</i> &amp; free "}, {"r2", "Slow"}})},
                       {"col", rows({{"c1", "<b>1</b>"}, {"c2", "&quot;2&quot;"}})}};
    full["settings"]
        = {{"rating", {{"type", "stars"}, {"colLabel", true}, {"color", "#FF9500"}, {"position", "left"}}}};

    Json bare = {{"uuid", "q2"}};
    Json emptyParts = question("q3", "dropdown", "Pick");
    emptyParts["helperText"] = Json::object();
    emptyParts["placeholder"] = Json::object();
    emptyParts["required"] = Json::object();
    emptyParts["options"] = {{"row", Json::array()}, {"col", Json::array()}};
    emptyParts["settings"] = Json::object();
    Json notRequired = question("q4", "single_text", "Name");
    notRequired["required"] = {{"enabled", false}};
    notRequired["options"] = {{"row", rows({{"r", "Only"}})}};

    const TovuSurvey survey = convert(document({{full, bare, emptyParts, notRequired}}));
    ASSERT_EQ(questionIds(survey), (std::vector<std::string>{"q1", "q2", "q3", "q4", "thank_you_auto"}));

    const TovuQuestion expectedFull{
        .id = "q1",
        .type = TovuQuestionType::multiRating,
        .title = "Rate us",
        .subtitle = "<b>Keep</b> &amp; as is ",
        .placeholder = " &lt;type&gt; ",
        .isRequired = true,
        .options = Choices{{"r1", "Fast & free", "Fast & free"}, {"r2", "Slow", "Slow"}},
        .columns = Choices{{"c1", "1", "1"}, {"c2", "\"2\"", "\"2\""}},
        .ratingStyle = "stars",
        .showColLabels = true,
        .ratingColor = "#FF9500",
    };
    EXPECT_EQ(survey.questions[0], expectedFull);
    EXPECT_EQ(survey.questions[1], (TovuQuestion{.id = "q2", .type = TovuQuestionType::singleChoice, .title = ""}));
    EXPECT_EQ(survey.questions[2], (TovuQuestion{.id = "q3", .type = TovuQuestionType::dropdown, .title = "Pick"}));
    EXPECT_EQ(survey.questions[3],
              (TovuQuestion{.id = "q4",
                            .type = TovuQuestionType::singleTextBox,
                            .title = "Name",
                            .options = Choices{{"r", "Only", "Only"}}}));
}

TEST(SurveyDocument, NpsLabelsFollowTheNpsSettingsOfAnyQuestionType)
{
    Json defaults = question("q1", "single_choice", "A");
    defaults["settings"] = {{"nps", Json::object()}};
    Json full = question("q2", "multi_nps", "B");
    full["settings"] = {{"nps",
                         {{"leftLabel", "<b>Never</b>"},
                          {"rightLabel", "Always"},
                          {"colors", {{"detractor", "#D0021B"}, {"passive", "#F8B400"}, {"promoter", "#27AE60"}}}}}};
    Json partial = question("q3", "rating", "C");
    partial["settings"] = {{"nps", {{"rightLabel", "Top"}, {"colors", {{"passive", "#888"}}}}}};
    Json none = question("q4", "nps", "D");
    none["settings"] = {{"rating", {{"type", "heart"}}}};

    const TovuSurvey survey = convert(document({{defaults, full, partial, none}}));
    ASSERT_EQ(survey.questions.size(), 5u);
    EXPECT_EQ(survey.questions[0].npsLabels, (TovuNPSLabels{.lower = "Not likely", .upper = "Very likely"}));
    // Labels are used as the document gives them.
    EXPECT_EQ(survey.questions[1].npsLabels,
              (TovuNPSLabels{"<b>Never</b>", "Always", "#D0021B", "#F8B400", "#27AE60"}));
    EXPECT_EQ(survey.questions[2].npsLabels,
              (TovuNPSLabels{.lower = "Not likely", .upper = "Top", .passiveColor = "#888"}));
    EXPECT_EQ(survey.questions[3].npsLabels, std::nullopt);
    EXPECT_EQ(survey.questions[3].ratingStyle, "heart");
    EXPECT_EQ(survey.questions[3].showColLabels, std::nullopt);
    EXPECT_EQ(survey.questions[3].ratingColor, std::nullopt);
}

// --- Follow-ups --------------------------------------------------------------

TEST(SurveyDocument, NpsProRangesBecomeConditionalFollowUps)
{
    Json parent = question("nps1", "nps_pro", "Recommend?");
    parent["settings"]
        = {{"configScale",
            {configScale("c1", 0, 6, true, {"q9"}), configScale("c2", 7, 8, false, {"q10"}),
             configScale("c3", 9, 9, std::nullopt, {"q11"}), configScale("c4", 9, 10, true, {}),
             configScale("c5", 10, 10, true, {"ghost"}), configScale("c6", 9, 10, true, {"q12", "q13"})}}};
    Json q9 = question("q9", "single_choice", "<p>Why&nbsp;not?</p>");
    q9["options"] = {{"row", rows({{"o1", "<b>Price</b>"}, {"o2", "Speed &amp; more"}})}};
    Json q12 = {{"uuid", "q12"}, {"options", {{"row", Json::array()}}}};

    // The follow-up q9 comes before its parent and in another block.
    const TovuSurvey survey = convert(
        document({{q9, question("keep", "dropdown", "Stay")},
                  {parent, question("q10", "multi_text", "Disabled range"), question("q11", "single_text", "No flag"),
                   q12, question("q13", "single_text", "Second id")}}));

    // Every id any range names leaves the main sequence, used or not.
    EXPECT_EQ(questionIds(survey), (std::vector<std::string>{"keep", "nps1", "thank_you_auto"}));
    const std::vector<TovuConditionalFollowUp> expected{
        {.minRating = 0,
         .maxRating = 6,
         .followUpQuestion = "Why not?",
         .questionId = "q9",
         .followUpType = TovuQuestionType::singleChoice,
         .followUpOptions = Choices{{"o1", "Price", "Price"}, {"o2", "Speed & more", "Speed & more"}}},
        // Only the first id of a range is used; a follow-up without title or rows has neither.
        {.minRating = 9,
         .maxRating = 10,
         .followUpQuestion = "",
         .questionId = "q12",
         .followUpType = TovuQuestionType::singleChoice},
    };
    ASSERT_EQ(survey.questions.size(), 3u);
    EXPECT_EQ(survey.questions[1].type, TovuQuestionType::nps);
    EXPECT_EQ(survey.questions[1].conditionalFollowUps, expected);
    EXPECT_EQ(survey.questions[1].followUpQuestion, std::nullopt);
}

TEST(SurveyDocument, FollowUpsAreOnlyAttachedToNpsPro)
{
    const auto withRanges = [](const std::string &quesType, Json scales) {
        Json parent = question("p", quesType, "Score");
        parent["settings"] = {{"configScale", std::move(scales)}};
        return convert(document({{parent, question("q9", "multi_text", "Why?")}}));
    };

    // "nps" and other types drop the follow-up from the sequence but never show it.
    for (const char *type : {"nps", "rating", "single_choice"}) {
        SCOPED_TRACE(type);
        const TovuSurvey survey = withRanges(type, {configScale("c1", 0, 6, true, {"q9"})});
        EXPECT_EQ(questionIds(survey), (std::vector<std::string>{"p", "thank_you_auto"}));
        EXPECT_EQ(survey.questions[0].conditionalFollowUps, std::nullopt);
    }

    // No usable range leaves the list absent rather than empty.
    for (Json scales : {Json::array(), Json::array({configScale("c1", 0, 6, false, {"q9"})}),
                        Json::array({configScale("c1", 0, 6, true, {"missing"})})}) {
        SCOPED_TRACE(scales.dump());
        const TovuSurvey survey = withRanges("nps_pro", scales);
        ASSERT_FALSE(survey.questions.empty());
        EXPECT_EQ(survey.questions[0].conditionalFollowUps, std::nullopt);
    }
}

TEST(SurveyDocument, LaterDuplicateDefinitionIsTheFollowUp)
{
    Json parent = question("p", "nps_pro", "Score");
    parent["settings"] = {{"configScale", {configScale("c1", 0, 10, true, {"q9"})}}};
    const TovuSurvey survey
        = convert(document({{question("q9", "single_text", "Old"), parent},
                            {question("dup", "dropdown", "First"), question("q9", "multi_text", "New"),
                             question("dup", "rating", "Second")}}));
    // Both copies of a follow-up leave the sequence; other duplicates are each asked.
    ASSERT_EQ(questionIds(survey), (std::vector<std::string>{"p", "dup", "dup", "thank_you_auto"}));
    EXPECT_EQ(survey.questions[1].title, "First");
    EXPECT_EQ(survey.questions[2].title, "Second");
    const auto &followUps = survey.questions[0].conditionalFollowUps;
    ASSERT_TRUE(followUps);
    ASSERT_EQ(followUps->size(), 1u);
    EXPECT_EQ(followUps->front().followUpQuestion, "New");
    EXPECT_EQ(followUps->front().followUpType, TovuQuestionType::multipleTextBox);
}

// --- Survey, pages and the closing question ----------------------------------

TEST(SurveyDocument, ClosingQuestionFollowsTheThankYouPage)
{
    const TovuQuestion closing{.id = "thank_you_auto", .type = TovuQuestionType::thankYou, .isRequired = false};
    const auto withTitle
        = [&](std::string title, std::optional<std::string> subtitle, std::optional<std::string> redirect) {
              TovuQuestion q = closing;
              q.title = std::move(title);
              q.subtitle = std::move(subtitle);
              q.redirectURL = std::move(redirect);
              return q;
          };
    const std::string byDefault = "Your feedback is greatly appreciated.";
    const std::string link = "https://example.com/next";

    struct Case {
        const char *name;
        std::optional<Json> page;
        TovuQuestion expected;
        std::optional<TovuSurveyPage> expectedPage;
    };
    const std::vector<Case> cases{
        {"absent", std::nullopt, withTitle("Thank You!", byDefault, {}), std::nullopt},
        {"disabled", Json{{"enabled", false}, {"content", "<p>Bye</p>"}, {"links", link}},
         withTitle("Thank You!", byDefault, {}), TovuSurveyPage{false, "Bye", {}}},
        {"enabled", Json{{"enabled", true}, {"content", "<p><b>Thanks</b> &amp; bye&#39;</p>\n"}, {"links", link}},
         withTitle("Thanks & bye'", {}, link), TovuSurveyPage{true, "Thanks & bye'", {}}},
        {"enabled, empty content", Json{{"enabled", true}, {"content", ""}}, withTitle("Thank You!", {}, {}),
         TovuSurveyPage{true, "", {}}},
        {"enabled, only markup", Json{{"enabled", true}, {"content", "<p>&nbsp;</p>"}, {"links", link}},
         withTitle("Thank You!", {}, link), TovuSurveyPage{true, "", {}}},
        {"enabled, no content", Json{{"enabled", true}}, withTitle("Thank You!", {}, {}), TovuSurveyPage{true, {}, {}}},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        Json data = document({{question("q1", "nps", "Score")}});
        if (c.page)
            data["thankYouPage"] = *c.page;
        const TovuSurvey survey = convert(data);
        ASSERT_EQ(survey.questions.size(), 2u);
        EXPECT_EQ(survey.questions.back(), c.expected);
        EXPECT_EQ(survey.thankYouPage, c.expectedPage);
    }
}

TEST(SurveyDocument, SurveyFieldsAndIntroPage)
{
    Json data = document({});
    data["displayTitle"] = "<b>Q3</b> &amp; more ";
    data["projectId"] = "proj-7";
    data["introPage"]
        = {{"enabled", true}, {"content", "<p>Welcome&nbsp;to <b>Acme</b></p>"}, {"buttonText", "&nbsp;Go <b>now</b>"}};
    const TovuSurvey survey = convert(data);
    EXPECT_EQ(survey.id, "survey-1");
    EXPECT_EQ(survey.name, "<b>Q3</b> &amp; more ");
    EXPECT_EQ(survey.projectId, "proj-7");
    EXPECT_EQ(survey.theme, std::nullopt);
    EXPECT_EQ(survey.introPage, (TovuSurveyPage{true, "Welcome to Acme", "&nbsp;Go <b>now</b>"}));
    EXPECT_EQ(survey.thankYouPage, std::nullopt);
    EXPECT_EQ(questionIds(survey), std::vector<std::string>{"thank_you_auto"});

    // Empty blocks add nothing; a disabled intro page is kept as disabled.
    data = document({{}, {}});
    data["introPage"] = {{"enabled", false}};
    const TovuSurvey empty = convert(data);
    EXPECT_EQ(questionIds(empty), std::vector<std::string>{"thank_you_auto"});
    EXPECT_EQ(empty.projectId, std::nullopt);
    EXPECT_EQ(empty.introPage, (TovuSurveyPage{.enabled = false}));
}

// --- Text cleaning -----------------------------------------------------------

struct CleanCase {
    const char *input;
    const char *expected;
};

void PrintTo(const CleanCase &c, std::ostream *os)
{
    *os << ::testing::PrintToString(std::string(c.input));
}

class SurveyTextClean : public ::testing::TestWithParam<CleanCase>
{
};

TEST_P(SurveyTextClean, RemovesTagsDecodesEntitiesAndTrims)
{
    EXPECT_EQ(TovuSurveyText::clean(GetParam().input), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Table, SurveyTextClean,
    ::testing::Values(CleanCase{"<p>Rate&nbsp;us</p>\n", "Rate us"}, CleanCase{"", ""}, CleanCase{"<br/>", ""},
                      CleanCase{"Plain text", "Plain text"},
                      // Entities are decoded one after the other, each everywhere, "&nbsp;" first.
                      CleanCase{"&amp;lt;", "<"}, CleanCase{"&amp;nbsp;", "&nbsp;"}, CleanCase{"&amp;amp;", "&amp;"},
                      CleanCase{"&amp;gt;&amp;quot;", ">\""}, CleanCase{"&quot;hi&quot; it&#39;s", "\"hi\" it's"},
                      CleanCase{"a&nbsp;&nbsp;b", "a  b"}, CleanCase{"&AMP; &Nbsp; &#34;", "&AMP; &Nbsp; &#34;"},
                      // Tags go before entities are decoded, so decoded tags stay as text.
                      CleanCase{"&lt;b&gt;bold&lt;/b&gt;", "<b>bold</b>"},
                      // A tag needs something between its brackets.
                      CleanCase{"a <> b", "a <> b"}, CleanCase{"1 < 2", "1 < 2"}, CleanCase{"x <y", "x <y"},
                      CleanCase{"a > b", "a > b"}, CleanCase{"<<b>x", "x"}, CleanCase{"<>b>", "<>b>"},
                      CleanCase{"<><i>x</i>", "<>x"}, CleanCase{"<p\nclass=\"a\">Hi</p\n>", "Hi"},
                      CleanCase{"<a href=\"x\">link</a> text", "link text"},
                      // Unicode white space and line breaks are trimmed at the ends only.
                      CleanCase{"\t\r\n Hi \n", "Hi"}, CleanCase{"&nbsp;Hi&nbsp;", "Hi"},
                      CleanCase{"\u00A0\u2028 Hi\u3000there \u3000", "Hi\u3000there"},
                      CleanCase{"\u0085\u1680\u2000\u200A\u2029\u202F\u205FHi\u00A0", "Hi"},
                      CleanCase{"\u200BHi\u200B", "\u200BHi\u200B"}, CleanCase{"\uFEFFHi", "\uFEFFHi"},
                      // Bytes that are not UTF-8 are kept, even when they look like white space.
                      CleanCase{"\xFFHi\xFE", "\xFFHi\xFE"}, CleanCase{" \xC3 ", "\xC3"},
                      CleanCase{"Hi\xE3\x80", "Hi\xE3\x80"}, CleanCase{"\x80 Hi", "\x80 Hi"},
                      CleanCase{"\xC0\xA0Hi\xC0\xA0", "\xC0\xA0Hi\xC0\xA0"},
                      CleanCase{"\xE0\x80\xA0Hi", "\xE0\x80\xA0Hi"}));

// --- Document decoding -------------------------------------------------------

TEST(SurveyDocument, DecodingFailuresNameThePath)
{
    Json scored = question("q0", "nps_pro", "Score");
    scored["settings"] = {{"configScale", {configScale("c1", 0, 6, true, {"q1"})}}};
    scored["options"] = {{"row", rows({{"r", "Row"}})}};
    const Json base = document({{scored, question("q1", "single_choice", "A"), question("q2", "dropdown", "B")}});
    ASSERT_TRUE(decodeJson<TovuAPIMainResponse>(Json{{"data", base}}));

    const std::string q0 = "data.blocks[0].questions[0].question.";
    const std::vector<Damage> damages{
        {"/blocks/0/questions/2/question/uuid", std::nullopt, Code::keyNotFound,
         "data.blocks[0].questions[2].question.uuid: required key of TovuAPIQuestionDef is missing"},
        {"/blocks/0/questions/1/question/uuid", Json(nullptr), Code::valueNotFound,
         "data.blocks[0].questions[1].question.uuid: required value of TovuAPIQuestionDef is null"},
        {"/blocks/0/questions/1/question", std::nullopt, Code::keyNotFound,
         "data.blocks[0].questions[1].question: required key of TovuAPIQuestionContainer is missing"},
        {"/blocks/0/questions/0/question/settings/configScale/0/scale", std::nullopt, Code::keyNotFound,
         q0 + "settings.configScale[0].scale: required key of TovuAPIConfigScale is missing"},
        {"/blocks/0/questions/0/question/settings/configScale/0/scale/max", 6.5, Code::typeMismatch,
         q0 + "settings.configScale[0].scale.max: expected integer, found 6.5"},
        {"/blocks/0/questions/0/question/settings/configScale/0/qId", "q1", Code::typeMismatch,
         q0 + "settings.configScale[0].qId: expected array, found string"},
        {"/blocks/0/questions/0/question/options/row", std::nullopt, Code::keyNotFound,
         q0 + "options.row: required key of TovuAPIOptions is missing"},
        {"/blocks/0/questions/0/question/options/row/0/text", std::nullopt, Code::keyNotFound,
         q0 + "options.row[0].text: required key of TovuAPIRowCol is missing"},
        {"/blocks/0/questions/0/question/required", Json{{"enabled", "yes"}}, Code::typeMismatch,
         q0 + "required.enabled: expected boolean, found string"},
        {"/blocks/0/questions/0/question/quesType", 5, Code::typeMismatch,
         q0 + "quesType: expected string, found integer"},
        {"/introPage", Json{{"content", "Hi"}}, Code::keyNotFound,
         "data.introPage.enabled: required key of TovuAPIIntroPage is missing"},
        {"/blocks", std::nullopt, Code::keyNotFound, "data.blocks: required key of TovuAPISurveyData is missing"},
    };
    for (const Damage &d : damages) {
        SCOPED_TRACE(d.pointer);
        const Json damaged = changed(base, d.pointer, d.value);
        EXPECT_TRUE(failsWith(decodeJson<TovuAPIMainResponse>(Json{{"data", damaged}}), d.code, d.message));
    }
    EXPECT_TRUE(failsWith(tovuDecode<TovuAPIMainResponse>("{}"), Code::keyNotFound,
                          "data: required key of TovuAPIMainResponse is missing"));

    // Unknown keys anywhere in the document and nulls for optional parts are accepted.
    Json extended = base;
    extended["theme"] = {{"mode", "dark"}};
    extended["introPage"] = nullptr;
    extended["blocks"][0]["logic"] = Json::array();
    extended["blocks"][0]["questions"][1]["question"]["title"] = nullptr;
    extended["blocks"][0]["questions"][1]["question"]["media"] = {{"url", "x"}};
    const TovuSurvey survey = convert(extended);
    EXPECT_EQ(questionIds(survey), (std::vector<std::string>{"q0", "q2", "thank_you_auto"}));
    EXPECT_EQ(survey.theme, std::nullopt);
    EXPECT_EQ(survey.introPage, std::nullopt);
    ASSERT_TRUE(survey.questions[0].conditionalFollowUps);
    EXPECT_EQ(survey.questions[0].conditionalFollowUps->front().followUpQuestion, "");
}
