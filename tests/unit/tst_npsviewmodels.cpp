// The NPS and multi-NPS pages driven through their view models, without widgets:
// score bands and their colours, which follow-up a score opens, and what submit reports.

#include <tovukit_io/viewmodel/TovuMultiNPSQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuNPSBands.h>
#include <tovukit_io/viewmodel/TovuNPSQuestionViewModel.h>

#include <QGuiApplication>
#include <QRegularExpression>

#include "TovuViewModelTesting.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace {

using Band = TovuNPSBands::Band;
using Kind = TovuNPSQuestionViewModel::FollowUpKind;

std::vector<TovuChoice> choices(std::initializer_list<const char *> ids)
{
    std::vector<TovuChoice> result;
    for (const char *id : ids)
        result.push_back({.id = id, .text = std::string("Text ") + id, .value = id});
    return result;
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
             .followUpOptions = choices({"speed", "price"})},
        }};
}

// What a page reports, in the order it reports it.
struct Recorder {
    std::vector<std::pair<std::string, TovuAnswer>> calls;
    int shakes = 0;

    void attach(TovuQuestionViewModel &model)
    {
        model.onAnswer = [this](const TovuAnswer &answer) {
            calls.emplace_back("answer", answer);
        };
        QObject::connect(&model, &TovuQuestionViewModel::shakeRequested, [this] { ++shakes; });
    }
    void attach(TovuNPSQuestionViewModel &model)
    {
        attach(static_cast<TovuQuestionViewModel &>(model));
        model.onAdditionalAnswer = [this](const TovuAnswer &answer) {
            calls.emplace_back("additional", answer);
        };
    }
};

} // namespace

TEST(NPSBands, ScoresFallInFixedBandsWithTheirDefaultColours)
{
    const QColor red = QColor::fromRgbF(0.95f, 0.26f, 0.21f);
    const QColor amber = QColor::fromRgbF(1.0f, 0.76f, 0.03f);
    const QColor green = QColor::fromRgbF(0.18f, 0.8f, 0.44f);
    const std::vector<std::tuple<int, Band, QColor>> cases{{0, Band::detractor, red},  {6, Band::detractor, red},
                                                           {7, Band::passive, amber},  {8, Band::passive, amber},
                                                           {9, Band::promoter, green}, {10, Band::promoter, green}};
    for (const auto &[score, band, color] : cases) {
        SCOPED_TRACE(score);
        EXPECT_EQ(TovuNPSBands::bandOf(score), band);
        EXPECT_EQ(TovuNPSBands::colorOf(score, std::nullopt), color);
    }
    EXPECT_TRUE(TovuNPSBands::isDark(red));
    EXPECT_FALSE(TovuNPSBands::isDark(amber));
    EXPECT_FALSE(TovuNPSBands::isDark(green));
    EXPECT_TRUE(TovuNPSBands::isDark(QColor(127, 127, 127)));
    EXPECT_FALSE(TovuNPSBands::isDark(QColor(128, 128, 128)));
}

TEST(NPSBands, OnlySixHexDigitsOverrideABand)
{
    const QColor red = TovuNPSBands::defaultColor(Band::detractor);
    const std::vector<std::pair<const char *, QColor>> cases{
        {"#1E90FF", QColor(0x1E, 0x90, 0xFF)},
        {" \n1e90ff\t", QColor(0x1E, 0x90, 0xFF)},
        {"##1E#90FF#", QColor(0x1E, 0x90, 0xFF)}, // every '#' goes
        {"#12GG56", red}, // the theme's lenient reading would give a colour
        {"#1E90FF80", red}, // no alpha here
        {"#F80", red},
        {"", red},
        {"+1E90F", red},
        {"0x1E90", red},
        {"1E 90F", red},
        {"\xD9\xA1\xD9\xA2\xD9\xA3\xD9\xA4\xD9\xA5\xD9\xA6", red}, // Arabic-Indic digits
    };
    for (const auto &[text, color] : cases) {
        SCOPED_TRACE(text);
        EXPECT_EQ(TovuNPSBands::colorOf(3, TovuNPSLabels{.detractorColor = text}), color);
    }
    const TovuNPSLabels labels{.passiveColor = "#000000", .promoterColor = "#FFFFFF"};
    EXPECT_EQ(TovuNPSBands::colorOf(8, labels), QColor(Qt::black));
    EXPECT_EQ(TovuNPSBands::colorOf(10, labels), QColor(Qt::white));
    EXPECT_EQ(TovuNPSBands::colorOf(0, labels), red) << "an override of another band";
}

TEST(NPSViewModel, EachScoreOpensTheFirstMatchingFollowUp)
{
    struct Case {
        const char *name;
        std::optional<std::string> ownFollowUp;
        bool isLast;
        int score;
        Kind kind;
        QString followUp;
        QString action;
    };
    const QString next = QStringLiteral("Next \u2192");
    const QString submit = QStringLiteral("Submit");
    const std::vector<Case> cases{
        {"low end of 0-6", "Anything else?", false, 0, Kind::text, QStringLiteral("What went wrong?"), submit},
        {"6: 0-6 listed first wins over 5-8", "Anything else?", false, 6, Kind::text,
         QStringLiteral("What went wrong?"), submit},
        {"7: 5-8 only", std::nullopt, false, 7, Kind::singleChoice, QStringLiteral("What would help?"), submit},
        {"9: the question's own", "Anything else?", false, 9, Kind::text, QStringLiteral("Anything else?"), submit},
        {"9: none, not last", std::nullopt, false, 9, Kind::none, QString(), next},
        {"10: none, last", std::nullopt, true, 10, Kind::none, QString(), submit},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        TovuNPSQuestionViewModel model(npsQuestion(c.ownFollowUp), c.isLast);
        EXPECT_FALSE(model.isActionVisible());
        EXPECT_EQ(model.selectedScore(), std::nullopt);
        model.selectScore(c.score);
        EXPECT_EQ(model.selectedScore(), c.score);
        EXPECT_EQ(model.followUpKind(), c.kind);
        EXPECT_EQ(model.followUpQuestion(), c.followUp);
        EXPECT_EQ(model.followUpOptionIds(),
                  c.kind == Kind::singleChoice ? QStringList({QStringLiteral("speed"), QStringLiteral("price")})
                                               : QStringList());
        EXPECT_TRUE(model.isActionVisible());
        EXPECT_EQ(model.actionTitle(), c.action);
    }
}

TEST(NPSViewModel, AChoiceFollowUpWithoutOptionsAsksInText)
{
    TovuQuestion q = npsQuestion();
    (*q.conditionalFollowUps)[1].followUpOptions = std::vector<TovuChoice>{};
    TovuNPSQuestionViewModel model(q, false);
    model.selectScore(8);
    EXPECT_EQ(model.followUpKind(), Kind::text);
    EXPECT_EQ(model.followUpQuestion(), QStringLiteral("What would help?"));
}

TEST(NPSViewModel, ReportsTheFollowUpFirstThenTheScore)
{
    struct Case {
        const char *name;
        std::optional<std::string> ownFollowUp;
        int score;
        QString typed;
        QString option;
        std::optional<TovuAnswer> additional;
    };
    const std::vector<Case> cases{
        {"conditional text, trimmed",
         "Anything else?",
         3,
         QStringLiteral(" \n too slow \t\n"),
         {},
         TovuAnswer{"fu-low", {{.rowId = "fu-low", .text = "too slow", .type = "text"}}}},
        {"conditional text, blank", "Anything else?", 3, QStringLiteral("  \n\t "), {}, std::nullopt},
        {"conditional choice",
         std::nullopt,
         7,
         {},
         QStringLiteral("price"),
         TovuAnswer{"fu-mid", {{.rowId = "price"}}}},
        {"conditional choice, none chosen; text ignored",
         "Anything else?",
         7,
         QStringLiteral("typed"),
         {},
         std::nullopt},
        {"the question's own",
         "Anything else?",
         10,
         QStringLiteral("great"),
         {},
         TovuAnswer{"nps1_followup", {{.rowId = "nps1", .text = "great", .type = "text"}}}},
        {"no follow-up at all", std::nullopt, 10, QStringLiteral("ignored"), {}, std::nullopt},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        TovuQuestion q = npsQuestion(c.ownFollowUp);
        q.options = choices({"row", "other"});
        TovuNPSQuestionViewModel model(q, false);
        Recorder recorder;
        recorder.attach(model);
        model.submit(); // no score yet: nothing
        model.selectScore(c.score);
        model.setFollowUpText(c.typed);
        model.selectFollowUpOption(c.option);
        model.submit();
        const TovuAnswer score{"nps1", {{.rowId = "row", .colId = std::to_string(c.score)}}};
        std::vector<std::pair<std::string, TovuAnswer>> expected;
        if (c.additional)
            expected.emplace_back("additional", *c.additional);
        expected.emplace_back("answer", score);
        EXPECT_EQ(recorder.calls, expected);
    }
}

TEST(NPSViewModel, AMatchWithoutAQuestionIdAnswersAsTheQuestionsOwnFollowUp)
{
    TovuQuestion q = npsQuestion();
    (*q.conditionalFollowUps)[0].questionId.reset();
    TovuNPSQuestionViewModel model(q, false);
    Recorder recorder;
    recorder.attach(model);
    model.selectScore(2);
    model.setFollowUpText(QStringLiteral("meh"));
    model.submit();
    ASSERT_EQ(recorder.calls.size(), 2u);
    EXPECT_EQ(recorder.calls[0].second,
              (TovuAnswer{"nps1_followup", {{.rowId = "nps1", .text = "meh", .type = "text"}}}));
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

TEST(NPSViewModel, RowAndColumnIdsComeFromOptionsAndColumns)
{
    std::vector<TovuChoice> eleven;
    for (int i = 0; i <= 10; ++i)
        eleven.push_back({.id = "col-" + std::to_string(i), .text = std::to_string(i), .value = std::to_string(i)});
    const std::vector<TovuChoice> five(eleven.begin(), eleven.begin() + 5);
    struct Case {
        const char *name;
        std::optional<std::vector<TovuChoice>> columns;
        int score;
        std::string colId;
    };
    const std::vector<Case> cases{
        {"no columns", std::nullopt, 10, "10"},  {"11 columns", eleven, 10, "col-10"},
        {"5 columns, inside", five, 4, "col-4"}, {"5 columns, beyond", five, 5, "5"},
        {"5 columns, top", five, 10, "10"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        TovuQuestion q = npsQuestion(std::nullopt);
        q.columns = c.columns;
        TovuNPSQuestionViewModel model(q, false);
        Recorder recorder;
        recorder.attach(model);
        model.selectScore(c.score);
        model.submit();
        model.submit();
        ASSERT_EQ(recorder.calls.size(), 2u);
        const TovuAnswerValue &first = recorder.calls[0].second.value.at(0);
        EXPECT_EQ(first.colId, c.colId);
        EXPECT_TRUE(TovuViewModelTesting::isUpperCaseUuid(first.rowId)) << first.rowId;
        EXPECT_NE(first.rowId, recorder.calls[1].second.value.at(0).rowId) << "a fresh row id on every submit";
    }
}

TEST(MultiNPSViewModel, ARequiredPageWantsEveryRowAndReportsInRowOrder)
{
    TovuQuestion q{.id = "m1",
                   .type = TovuQuestionType::multiNps,
                   .title = "Rate",
                   .isRequired = true,
                   .options = choices({"r3", "r1", "r2"}), // reported in this order
                   .npsLabels = TovuNPSLabels{.lower = "Low", .upper = "High"}};
    TovuMultiNPSQuestionViewModel model(q, false);
    Recorder recorder;
    recorder.attach(model);
    EXPECT_TRUE(model.isActionVisible());
    EXPECT_EQ(model.actionTitle(), QStringLiteral("Next \u2192"));
    EXPECT_EQ(model.lowLabel(), QStringLiteral("Low"));

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

    model.selectScore(QStringLiteral("r2"), 0);
    EXPECT_FALSE(model.isValidationVisible()) << "rating hides the message";
    model.selectScore(QStringLiteral("r1"), 7); // re-rated: the last one counts
    EXPECT_EQ(model.selectedScores().at("r1"), (TovuMultiNPSQuestionViewModel::Rating{7, "7"}));
    model.submit();
    const TovuAnswer expected{
        "m1", {{.rowId = "r3", .colId = "2"}, {.rowId = "r1", .colId = "7"}, {.rowId = "r2", .colId = "0"}}};
    ASSERT_EQ(recorder.calls.size(), 1u);
    EXPECT_EQ(recorder.calls[0].second, expected);
}

TEST(MultiNPSViewModel, AnOptionalPageReportsWhatWasRatedAndNothingWhenNothingWas)
{
    TovuQuestion q{.id = "m1",
                   .type = TovuQuestionType::multiNps,
                   .title = "Rate",
                   .isRequired = false,
                   .options = choices({"r1", "r2", "r3"}),
                   .columns = choices({"c0", "c1", "c2"})};
    TovuMultiNPSQuestionViewModel model(q, true);
    Recorder recorder;
    recorder.attach(model);
    EXPECT_EQ(model.actionTitle(), QStringLiteral("Submit"));
    model.submit();
    EXPECT_TRUE(recorder.calls.empty());
    EXPECT_FALSE(model.isValidationVisible());
    EXPECT_EQ(recorder.shakes, 0);

    model.selectScore(QStringLiteral("r2"), 1);
    model.submit();
    ASSERT_EQ(recorder.calls.size(), 1u);
    EXPECT_EQ(recorder.calls[0].second, (TovuAnswer{"m1", {{.rowId = "r2", .colId = "c1"}}}));
    EXPECT_EQ(model.scoreOf(QStringLiteral("r2")), 1);
    EXPECT_EQ(model.scoreOf(QStringLiteral("r1")), -1);
}
