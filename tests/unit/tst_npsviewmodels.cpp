// The NPS and multi-NPS pages driven through their view models, without widgets:
// score bands, their colours and button looks, which follow-up a score opens, and
// what submit reports.

#include <tovukit_io/viewmodel/TovuMultiNPSQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuNPSBands.h>
#include <tovukit_io/viewmodel/TovuNPSQuestionViewModel.h>

#include "TovuViewModelTesting.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Look = TovuNPSBands::Look;
using Kind = TovuNPSQuestionViewModel::FollowUpKind;
using Calls = std::vector<std::pair<std::string, TovuAnswer>>;

const QColor red = QColor::fromRgbF(0.95f, 0.26f, 0.21f);
const QColor amber = QColor::fromRgbF(1.0f, 0.76f, 0.03f);
const QColor green = QColor::fromRgbF(0.18f, 0.8f, 0.44f);
const QColor white(Qt::white);
const QString next = QStringLiteral("Next \u2192");
const QString submit = QStringLiteral("Submit");

QColor grey(float level)
{
    return QColor::fromRgbF(level, level, level);
}

std::vector<TovuChoice> choices(std::initializer_list<const char *> ids)
{
    std::vector<TovuChoice> result;
    for (const char *id : ids)
        result.push_back({.id = id, .text = std::string("Text ") + id, .value = id});
    return result;
}

TovuAnswer textAnswer(const std::string &questionId, const std::string &rowId, const std::string &text)
{
    return {questionId, {{.rowId = rowId, .text = text, .type = "text"}}};
}

// 0-6 asks in text ("fu-low"), 5-8 (overlapping) offers a choice ("fu-mid"), 9 and 10
// fall through to the question's own follow-up.
TovuQuestion npsQuestion(std::optional<std::string> followUp = "Anything else?")
{
    return TovuQuestion{
        .id = "nps1",
        .type = TovuQuestionType::nps,
        .title = "Recommend us?",
        .followUpQuestion = std::move(followUp),
        .conditionalFollowUps = std::vector<TovuConditionalFollowUp>{
            {.minRating = 0, .maxRating = 6, .followUpQuestion = "What went wrong?", .questionId = "fu-low"},
            {.minRating = 5,
             .maxRating = 8,
             .followUpQuestion = "What would help?",
             .questionId = "fu-mid",
             .followUpType = TovuQuestionType::singleChoice,
             .followUpOptions = choices({"speed", "price"})}}};
}

// What a page reports, tagged and in order.
struct Recorder {
    Calls calls;
    int shakes = 0;

    explicit Recorder(TovuQuestionViewModel &model)
    {
        model.onAnswer = record("answer");
        QObject::connect(&model, &TovuQuestionViewModel::shakeRequested, [this] { ++shakes; });
        if (auto *nps = qobject_cast<TovuNPSQuestionViewModel *>(&model))
            nps->onAdditionalAnswer = record("additional");
    }
    std::function<void(const TovuAnswer &)> record(const char *tag)
    {
        return [this, tag](const TovuAnswer &answer) {
            calls.emplace_back(tag, answer);
        };
    }
};

} // namespace

TEST(NPSBands, OnlySixHexDigitsOverrideABandsColour)
{
    const QColor blue(0x1E, 0x90, 0xFF);
    // Blanks and every '#' go; then six ASCII hex digits, no alpha, no short form, nothing
    // the theme's lenient reading would accept, no digits of another script.
    const std::vector<std::pair<const char *, QColor>> overrides{
        {"#1E90FF", blue}, {" \n1e90ff\t", blue}, {"##1E#90FF#", blue}, {"#1E90FF80", red}, {"#F80", red},
        {"", red},         {"+1E90F", red},       {"0x1E90", red},      {"1E 90F", red},    {"#12GG56", red}};
    for (const auto &[text, color] : overrides) {
        SCOPED_TRACE(text);
        EXPECT_EQ(TovuNPSBands::colorOf(3, TovuNPSLabels{.detractorColor = text}), color);
    }
    const char *arabicIndic = "\xD9\xA1\xD9\xA2\xD9\xA3\xD9\xA4\xD9\xA5\xD9\xA6";
    EXPECT_EQ(TovuNPSBands::colorOf(3, TovuNPSLabels{.detractorColor = arabicIndic}), red);
    const TovuNPSLabels labels{.passiveColor = "#000000", .promoterColor = "#FFFFFF"};
    EXPECT_EQ(TovuNPSBands::colorOf(8, labels), QColor(Qt::black));
    EXPECT_EQ(TovuNPSBands::colorOf(10, labels), white);
    EXPECT_EQ(TovuNPSBands::colorOf(0, labels), red) << "an override of another band";
    EXPECT_TRUE(TovuNPSBands::isDark(QColor(127, 127, 127)));
    EXPECT_FALSE(TovuNPSBands::isDark(QColor(128, 128, 128)));
}

TEST(NPSViewModel, AScoreButtonLooksByItsBandAndWhetherItIsChosen)
{
    TovuNPSQuestionViewModel model(npsQuestion(), false);
    // Nothing chosen: 0-6 red (dark: a white title), 7 and 8 amber, 9 and 10 green.
    const std::vector<std::pair<int, Look>> resting{
        {0, {red, white, red, 1.5}},          {6, {red, white, red, 1.5}},
        {7, {amber, grey(0.2f), amber, 1.5}}, {8, {amber, grey(0.2f), amber, 1.5}},
        {9, {green, grey(0.2f), green, 1.5}}, {10, {green, grey(0.2f), green, 1.5}}};
    for (const auto &[score, look] : resting)
        EXPECT_EQ(model.scoreLook(score), look) << score;
    model.selectScore(7);
    EXPECT_EQ(model.scoreLook(7), (Look{amber, grey(0.15f), grey(0.3f), 3.0})) << "chosen";
    EXPECT_EQ(model.scoreLook(8), (Look{amber, grey(0.35f), amber, 1.5})) << "another chosen";
    model.selectScore(3);
    EXPECT_EQ(model.scoreLook(3), (Look{red, white, red, 3.0}));
    TovuQuestion q = npsQuestion();
    q.npsLabels = TovuNPSLabels{.promoterColor = "#1E90FF"};
    const QColor blue(0x1E, 0x90, 0xFF); // dark enough for a white title
    EXPECT_EQ(TovuNPSQuestionViewModel(q, false).scoreLook(9), (Look{blue, white, blue, 1.5}));
}

TEST(NPSViewModel, EachScoreOpensTheFirstMatchingFollowUp)
{
    const TovuQuestion own = npsQuestion();
    const TovuQuestion none = npsQuestion(std::nullopt);
    TovuQuestion noOptions = npsQuestion();
    (*noOptions.conditionalFollowUps)[1].followUpOptions = std::vector<TovuChoice>{};
    const char *wrong = "What went wrong?";
    const char *help = "What would help?";
    const std::vector<std::tuple<const char *, TovuQuestion, bool, int, Kind, const char *, QString>> cases{
        {"low end of 0-6", own, false, 0, Kind::text, wrong, submit},
        {"6: 0-6 listed first wins over 5-8", own, false, 6, Kind::text, wrong, submit},
        {"7: 5-8 only", none, false, 7, Kind::singleChoice, help, submit},
        {"8: a choice without options asks in text", noOptions, false, 8, Kind::text, help, submit},
        {"9: the question's own", own, false, 9, Kind::text, "Anything else?", submit},
        {"9: none, not last", none, false, 9, Kind::none, "", next},
        {"10: none, last", none, true, 10, Kind::none, "", submit}};
    for (const auto &[name, question, isLast, score, kind, followUp, action] : cases) {
        SCOPED_TRACE(name);
        TovuNPSQuestionViewModel model(question, isLast);
        EXPECT_FALSE(model.isActionVisible());
        EXPECT_EQ(model.selectedScore(), std::nullopt);
        model.selectScore(score);
        EXPECT_EQ(model.selectedScore(), score);
        EXPECT_EQ(model.followUpKind(), kind);
        EXPECT_EQ(model.followUpQuestion(), QString::fromUtf8(followUp));
        EXPECT_EQ(model.followUpOptionIds(),
                  kind == Kind::singleChoice ? QStringList({QStringLiteral("speed"), QStringLiteral("price")})
                                             : QStringList());
        EXPECT_TRUE(model.isActionVisible());
        EXPECT_EQ(model.actionTitle(), action);
    }
}

TEST(NPSViewModel, ReportsTheFollowUpFirstThenTheScore)
{
    const TovuQuestion own = npsQuestion();
    const TovuQuestion none = npsQuestion(std::nullopt);
    TovuQuestion noId = npsQuestion();
    (*noId.conditionalFollowUps)[0].questionId.reset();
    // Each page has a row option: the score's answer is {row, score}, after the follow-up's.
    const std::vector<
        std::tuple<const char *, TovuQuestion, int, const char *, const char *, std::optional<TovuAnswer>>>
        cases{
            {"conditional text, trimmed", own, 3, " \n too slow \t\n", "", textAnswer("fu-low", "fu-low", "too slow")},
            {"conditional text, blank", own, 3, "  \n\t ", "", std::nullopt},
            {"conditional choice", none, 7, "", "price", TovuAnswer{"fu-mid", {{.rowId = "price"}}}},
            {"conditional choice, none chosen; text ignored", own, 7, "typed", "", std::nullopt},
            {"matched, no id: as the question's own", noId, 2, "meh", "", textAnswer("nps1_followup", "nps1", "meh")},
            {"the question's own", own, 10, "great", "", textAnswer("nps1_followup", "nps1", "great")},
            {"no follow-up at all", none, 10, "ignored", "", std::nullopt}};
    for (const auto &[name, question, score, typed, option, additional] : cases) {
        SCOPED_TRACE(name);
        TovuQuestion q = question;
        q.options = choices({"row", "other"});
        TovuNPSQuestionViewModel model(q, false);
        Recorder recorder(model);
        model.submit(); // no score yet: nothing
        model.selectScore(score);
        model.setFollowUpText(QString::fromUtf8(typed));
        model.selectFollowUpOption(QString::fromUtf8(option));
        model.submit();
        Calls expected;
        if (additional)
            expected.emplace_back("additional", *additional);
        expected.emplace_back("answer", TovuAnswer{"nps1", {{.rowId = "row", .colId = std::to_string(score)}}});
        EXPECT_EQ(recorder.calls, expected);
    }
    // Without options, a fresh row id every time; the column at the score's index, if any.
    TovuQuestion q = npsQuestion(std::nullopt);
    q.columns = choices({"c0", "c1", "c2", "c3", "c4"});
    TovuNPSQuestionViewModel model(q, false);
    Recorder recorder(model);
    model.selectScore(4);
    model.submit();
    model.selectScore(5);
    model.submit();
    ASSERT_EQ(recorder.calls.size(), 2u);
    const TovuAnswerValue &first = recorder.calls[0].second.value.at(0);
    const TovuAnswerValue &second = recorder.calls[1].second.value.at(0);
    EXPECT_EQ(first.colId, "c4");
    EXPECT_EQ(second.colId, "5");
    EXPECT_TRUE(TovuViewModelTesting::isUpperCaseUuid(first.rowId)) << first.rowId;
    EXPECT_NE(first.rowId, second.rowId);
}

TEST(NPSViewModel, ANewScoreForgetsTheOptionAndTheTextOfATextFollowUp)
{
    TovuNPSQuestionViewModel model(npsQuestion(), false);
    model.selectScore(3);
    model.setFollowUpText(QStringLiteral("typed"));
    model.selectScore(7); // a choice list: the text stays, hidden
    EXPECT_EQ(model.followUpText(), QStringLiteral("typed"));
    model.selectFollowUpOption(QStringLiteral("speed"));
    model.selectFollowUpOption(QStringLiteral("nope")); // not offered: ignored
    EXPECT_EQ(model.selectedFollowUpOptionId(), "speed");
    model.selectScore(8);
    EXPECT_EQ(model.selectedFollowUpOptionId(), std::nullopt);
    model.selectScore(9); // a text follow-up starts empty
    EXPECT_EQ(model.followUpText(), QString());
    model.selectFollowUpOption(QStringLiteral("speed")); // no list shown
    EXPECT_EQ(model.selectedFollowUpOptionId(), std::nullopt);
    model.selectScore(11);
    model.selectScore(-1);
    EXPECT_EQ(model.selectedScore(), 9) << "off the scale: ignored";
}

TEST(MultiNPSViewModel, ARequiredPageWantsEveryRowAnOptionalOneReportsWhatWasRated)
{
    TovuQuestion q{.id = "m1",
                   .type = TovuQuestionType::multiNps,
                   .isRequired = true,
                   .options = choices({"r3", "r1", "r2"}), // reported in this order
                   .npsLabels = TovuNPSLabels{.lower = "Low", .upper = "High"}};
    TovuMultiNPSQuestionViewModel model(q, false);
    Recorder recorder(model);
    EXPECT_TRUE(model.isActionVisible());
    EXPECT_EQ(model.actionTitle(), next);
    EXPECT_EQ(model.lowLabel(), QStringLiteral("Low"));
    EXPECT_EQ(model.highLabel(), QStringLiteral("High"));

    model.submit(); // nothing rated
    model.selectScore(QStringLiteral("r3"), 2);
    model.selectScore(QStringLiteral("r1"), 9);
    model.selectScore(QStringLiteral("nope"), 9); // no such row
    model.selectScore(QStringLiteral("r2"), 11); // off the scale
    model.submit();
    EXPECT_TRUE(recorder.calls.empty());
    EXPECT_EQ(recorder.shakes, 2);
    EXPECT_TRUE(model.isValidationVisible());
    EXPECT_EQ(model.validationMessage(), QStringLiteral("Please rate all items."));
    EXPECT_EQ(model.scoreLook("r3", 2), (Look{red, white, red, 3.0}));
    EXPECT_EQ(model.scoreLook("r3", 8), (Look{amber, grey(0.35f), amber, 1.5}));
    EXPECT_EQ(model.scoreLook("r2", 8), (Look{amber, grey(0.2f), amber, 1.5})) << "an unrated row rests";

    model.selectScore(QStringLiteral("r2"), 0);
    EXPECT_FALSE(model.isValidationVisible()) << "rating hides the message";
    model.selectScore(QStringLiteral("r1"), 7); // re-rated: the last one counts
    model.submit();
    const TovuAnswer expected{
        "m1", {{.rowId = "r3", .colId = "2"}, {.rowId = "r1", .colId = "7"}, {.rowId = "r2", .colId = "0"}}};
    EXPECT_EQ(recorder.calls, (Calls{{"answer", expected}}));

    // Optional, last, with columns and the default labels.
    q.isRequired = false;
    q.npsLabels.reset();
    q.columns = choices({"c0", "c1", "c2"});
    TovuMultiNPSQuestionViewModel optional(q, true);
    Recorder quiet(optional);
    EXPECT_EQ(optional.actionTitle(), submit);
    EXPECT_EQ(optional.lowLabel(), QStringLiteral("Not likely"));
    EXPECT_EQ(optional.highLabel(), QStringLiteral("Very likely"));
    optional.submit(); // nothing rated: nothing, and no message
    EXPECT_TRUE(quiet.calls.empty());
    EXPECT_FALSE(optional.isValidationVisible());
    EXPECT_EQ(quiet.shakes, 0);
    optional.selectScore(QStringLiteral("r1"), 1);
    optional.submit();
    EXPECT_EQ(quiet.calls, (Calls{{"answer", {"m1", {{.rowId = "r1", .colId = "c1"}}}}}));
    EXPECT_EQ(optional.scoreOf(QStringLiteral("r1")), 1);
    EXPECT_EQ(optional.scoreOf(QStringLiteral("r2")), -1);
}
