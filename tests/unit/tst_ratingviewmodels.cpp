// The rating and multi-rating pages driven through their view models, without any
// widget: the variant a survey asks for, what a tap fills, which follow-up opens and
// what the action reports.

#include <tovukit_io/model/TovuRatingVariant.h>
#include <tovukit_io/viewmodel/TovuMultiRatingQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>
#include <tovukit_io/viewmodel/TovuRatingQuestionViewModel.h>

#include <QGuiApplication>
#include <QRegularExpression>

#include "TovuViewModelTesting.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace {

using Variant = TovuRatingVariant;
constexpr std::array allVariants{Variant::star, Variant::heart, Variant::circle,
                                 Variant::tile, Variant::emoji, Variant::numeric};

std::vector<TovuChoice> choices(const char *prefix, int count)
{
    std::vector<TovuChoice> result;
    for (int i = 1; i <= count; ++i) {
        const std::string id = prefix + std::to_string(i);
        result.push_back({.id = id, .text = "Text " + id, .value = id});
    }
    return result;
}

TovuQuestion ratingQuestion(std::optional<std::vector<TovuChoice>> columns = std::nullopt)
{
    return {.id = "q", .type = TovuQuestionType::rating, .title = "Rate us", .columns = std::move(columns)};
}

TovuQuestion grid(bool required, std::vector<TovuChoice> rows, int columns)
{
    return {.id = "grid",
            .type = TovuQuestionType::multiRating,
            .title = "Rate each",
            .isRequired = required,
            .options = std::move(rows),
            .columns = choices("c", columns)};
}

using TovuViewModelTesting::Recorder;

// Which of `count` buttons show as chosen.
std::set<int> chosen(const TovuRatingQuestionViewModel &model)
{
    std::set<int> result;
    for (int rating = 1; rating <= model.buttonCount(); ++rating) {
        if (model.isSelected(rating))
            result.insert(rating);
    }
    return result;
}

} // namespace

TEST(RatingVariant, SurveyStylesMapIgnoringCaseAndDefaultToStar)
{
    const std::vector<std::pair<std::optional<std::string_view>, Variant>> cases{
        {"stars", Variant::star},
        {"STARS", Variant::star},
        {"star", Variant::star},
        {"heart", Variant::heart},
        {"HeArT", Variant::heart},
        {"hearts", Variant::star},
        {"circle", Variant::circle},
        {"tile", Variant::tile},
        {"Emoji", Variant::emoji},
        {"numeric", Variant::star},
        {"NUMERIC", Variant::star},
        {" emoji", Variant::star},
        {"", Variant::star},
        {std::nullopt, Variant::star},
        {"\xC3\x89MOJI", Variant::star}, // "ÉMOJI": non-ASCII bytes pass through
        {"\xFF\xFE\x80", Variant::star}, // not UTF-8 at all
    };
    for (const auto &[style, expected] : cases) {
        SCOPED_TRACE(std::string(style.value_or("(none)")));
        EXPECT_EQ(ratingVariantFrom(style), expected);
    }
}

TEST(RatingVariant, RawValuesRoundTrip)
{
    const std::array<std::string_view, 6> texts{"STAR", "HEART", "CIRCLE", "TILE", "EMOJI", "NUMERIC"};
    for (std::size_t i = 0; i < allVariants.size(); ++i) {
        EXPECT_EQ(rawValue(allVariants[i]), texts[i]);
        EXPECT_EQ(fromRawValue<Variant>(texts[i]), allVariants[i]);
    }
    EXPECT_FALSE(fromRawValue<Variant>("star"));
    EXPECT_FALSE(fromRawValue<Variant>(""));
}

TEST(RatingViewModel, ButtonCountComesFromColumnsElseMaxRating)
{
    struct Case {
        std::optional<int> columns;
        int maxRating;
        int buttons;
    };
    for (const Case &c : {Case{7, 5, 7}, Case{std::nullopt, 5, 5}, Case{std::nullopt, 0, 1}, Case{0, 3, 3},
                          Case{std::nullopt, -4, 1}, Case{2, 10, 2}, Case{std::nullopt, 1 << 30, 100}}) {
        SCOPED_TRACE(c.maxRating);
        const TovuQuestion q = ratingQuestion(c.columns ? std::optional(choices("c", *c.columns)) : std::nullopt);
        EXPECT_EQ(TovuRatingQuestionViewModel(q, Variant::star, c.maxRating, false).buttonCount(), c.buttons);
    }
    TovuQuestion labelled = ratingQuestion(choices("c", 3));
    EXPECT_TRUE(TovuRatingQuestionViewModel(labelled, Variant::star, 5, false).columnLabels().isEmpty());
    labelled.showColLabels = true;
    const TovuRatingQuestionViewModel withLabels(labelled, Variant::star, 5, false);
    EXPECT_EQ(withLabels.columnLabels(),
              (QStringList{QStringLiteral("Text c1"), QStringLiteral("Text c2"), QStringLiteral("Text c3")}));
    EXPECT_EQ(withLabels.accessibleName(2), QStringLiteral("2 of 3 stars, Text c2"));
    EXPECT_FALSE(TovuRatingQuestionViewModel(std::nullopt, Variant::star, 4, false).columnLabel(1));
}

TEST(RatingViewModel, StarsAndNumbersFillUpToTheRatingOthersMarkOne)
{
    struct Case {
        Variant variant;
        std::set<int> chosen;
        QString symbolOfTwo;
        QString titleOfThree;
    };
    const std::vector<Case> cases{
        {Variant::star, {1, 2, 3}, QStringLiteral("star.fill"), {}},
        {Variant::numeric, {1, 2, 3}, {}, QStringLiteral("3")},
        {Variant::heart, {3}, QStringLiteral("heart"), {}},
        {Variant::circle, {3}, QStringLiteral("circle"), {}},
        {Variant::tile, {3}, QStringLiteral("square"), {}},
        {Variant::emoji, {3}, {}, QString::fromUtf8("\xF0\x9F\x98\x90")},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(std::string(rawValue(c.variant)));
        TovuRatingQuestionViewModel model(ratingQuestion(), c.variant, 5, false);
        EXPECT_FALSE(model.isActionVisible());
        model.rate(0);
        model.rate(6);
        EXPECT_FALSE(model.selectedRating()) << "outside the scale: ignored";
        model.rate(3);
        EXPECT_EQ(model.selectedRating(), 3);
        EXPECT_EQ(chosen(model), c.chosen);
        EXPECT_EQ(model.symbolName(2), c.symbolOfTwo);
        EXPECT_EQ(model.buttonTitle(3), c.titleOfThree);
        EXPECT_TRUE(model.isActionVisible());
    }
    EXPECT_EQ(TovuRatingQuestionViewModel(ratingQuestion(), Variant::tile, 5, false).symbolName(1),
              QStringLiteral("square"));
    const TovuRatingQuestionViewModel faces(ratingQuestion(), Variant::emoji, 10, false);
    const QStringList expected = QString::fromUtf8("😞 😕 😐 🙂 😁 ⭐ ⭐ ⭐ ⭐ ⭐").split(u' ');
    for (int rating = 1; rating <= 10; ++rating)
        EXPECT_EQ(faces.buttonTitle(rating), expected[rating - 1]) << rating;
}

TEST(RatingViewModel, FollowUpIsTheFirstMatchingConditionalElseTheQuestions)
{
    TovuQuestion q = ratingQuestion();
    q.conditionalFollowUps = std::vector<TovuConditionalFollowUp>{
        {.minRating = 1, .maxRating = 2, .followUpQuestion = "What went wrong?"},
        {.minRating = 2, .maxRating = 3, .followUpQuestion = "Overlapping"},
        {.minRating = 5, .maxRating = 5, .followUpQuestion = "What did you love?"}};
    q.followUpQuestion = "Anything else?";
    struct Case {
        TovuQuestion question;
        bool isLast;
        int rating;
        std::optional<QString> followUp;
        QString action;
    };
    TovuQuestion plain = ratingQuestion();
    const QString next = QStringLiteral("Next \u2192");
    const QString submit = QStringLiteral("Submit");
    const std::vector<Case> cases{
        {q, false, 1, QStringLiteral("What went wrong?"), submit},
        {q, false, 2, QStringLiteral("What went wrong?"), submit},
        {q, false, 3, QStringLiteral("Overlapping"), submit},
        {q, false, 4, QStringLiteral("Anything else?"), submit},
        {q, false, 5, QStringLiteral("What did you love?"), submit},
        {plain, false, 4, std::nullopt, next},
        {plain, true, 4, std::nullopt, submit},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.rating);
        TovuRatingQuestionViewModel model(c.question, Variant::star, 5, c.isLast);
        model.rate(c.rating);
        EXPECT_EQ(model.isFollowUpVisible(), c.followUp.has_value());
        EXPECT_EQ(model.followUpText(), c.followUp.value_or(QString()));
        EXPECT_EQ(model.actionTitle(), c.action);
    }
    plain.conditionalFollowUps = q.conditionalFollowUps; // rating 4 matches none and there is no fallback
    TovuRatingQuestionViewModel gap(plain, Variant::star, 5, false);
    gap.rate(1);
    gap.rate(4);
    EXPECT_FALSE(gap.isFollowUpVisible()) << "each tap re-evaluates";
    EXPECT_EQ(gap.actionTitle(), next);
}

TEST(RatingViewModel, ReportsTheRatingWithRowAndColumnIdsButNoFollowUpText)
{
    struct Case {
        const char *name;
        std::optional<int> columns;
        bool options;
        int rating;
        std::string colId;
    };
    const std::vector<Case> cases{
        {"fifth of five columns", 5, true, 5, "c5"},
        {"no columns: the rating", std::nullopt, true, 5, "5"},
        {"no options: a fresh row id", 3, false, 2, "c2"},
    };
    const QRegularExpression uuid(QStringLiteral("^[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}$"));
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        TovuQuestion q = ratingQuestion(c.columns ? std::optional(choices("c", *c.columns)) : std::nullopt);
        if (c.options)
            q.options = choices("o", 2);
        q.followUpQuestion = "Tell us more";
        TovuRatingQuestionViewModel model(q, Variant::heart, 5, false);
        Recorder recorder;
        recorder.attach(model);
        model.submit(); // nothing rated yet: nothing at all
        EXPECT_TRUE(recorder.answers.empty());
        model.rate(c.rating);
        model.submit();
        model.submit();
        ASSERT_EQ(recorder.answers.size(), 2u);
        const TovuAnswer &answer = recorder.answers[0];
        EXPECT_EQ(answer.questionId, "q");
        ASSERT_EQ(answer.value.size(), 1u);
        EXPECT_EQ(answer.value[0].colId, c.colId);
        EXPECT_FALSE(answer.value[0].text) << "the follow-up only prompts";
        EXPECT_FALSE(answer.value[0].type);
        if (c.options) {
            EXPECT_EQ(answer.value[0].rowId, "o1");
        } else {
            EXPECT_TRUE(uuid.match(QString::fromStdString(answer.value[0].rowId)).hasMatch());
            EXPECT_NE(recorder.answers[1].value[0].rowId, answer.value[0].rowId);
        }
        EXPECT_EQ(recorder.shakes, 0);
    }
}

TEST(RatingViewModel, ActiveColourIsTheRatingColourElseOrange)
{
    const QColor orange = TovuPlatformColors::color(TovuPlatformColors::Role::orange);
    const std::vector<std::pair<std::optional<std::string>, QColor>> cases{{"#FF000080", QColor(255, 0, 0, 128)},
                                                                           {" 00ff00\n", QColor(0, 255, 0)},
                                                                           {"#F80", orange},
                                                                           {"", orange},
                                                                           {std::nullopt, orange}};
    for (const auto &[text, expected] : cases) {
        TovuQuestion q = ratingQuestion();
        q.ratingColor = text;
        EXPECT_EQ(TovuRatingQuestionViewModel(q, Variant::star, 5, false).activeColor(), expected);
        EXPECT_EQ(TovuMultiRatingQuestionViewModel(q, Variant::star, false).activeColor(), expected);
    }
}

TEST(MultiRatingViewModel, TapsRateARowThroughWellFormedIdentifiersOnly)
{
    TovuMultiRatingQuestionViewModel model(grid(true, choices("r", 2), 5), Variant::star, false);
    EXPECT_EQ(TovuMultiRatingQuestionViewModel::identifier("r1", "c3"), QStringLiteral("r1::c3"));
    model.submit(); // shows the message, which a valid tap hides
    for (const char *ignored : {"r1", "r1::c3::x", "", "::", "r9::c3", "r1::c9", "r1:c3"})
        model.tap(QString::fromUtf8(ignored));
    EXPECT_TRUE(model.selectedCols().empty());
    EXPECT_TRUE(model.isValidationVisible());

    model.tap(QStringLiteral("r1::c3"));
    EXPECT_FALSE(model.isValidationVisible());
    EXPECT_EQ(model.selectedCols(), (std::map<std::string, std::string>{{"r1", "c3"}}));
    model.tap(QStringLiteral("r1::c2")); // re-rating replaces
    EXPECT_EQ(model.selectedCols(), (std::map<std::string, std::string>{{"r1", "c2"}}));
    EXPECT_EQ(model.selectedPosition(QStringLiteral("r1")), 2);
    EXPECT_EQ(model.selectedPosition(QStringLiteral("r2")), 0);
}

TEST(MultiRatingViewModel, EverySymbolFillsUpToTheChoiceFacesStandAlone)
{
    for (Variant variant : allVariants) {
        SCOPED_TRACE(std::string(rawValue(variant)));
        TovuMultiRatingQuestionViewModel model(grid(false, choices("r", 2), 7), variant, false);
        model.tap(QStringLiteral("r1::c3"));
        std::set<int> filled;
        for (int position = 1; position <= 7; ++position) {
            if (model.isFilled(QStringLiteral("r1"), position))
                filled.insert(position);
            EXPECT_FALSE(model.isFilled(QStringLiteral("r2"), position)) << "other rows untouched";
        }
        const bool emoji = variant == Variant::emoji;
        EXPECT_EQ(filled, (emoji ? std::set<int>{3} : std::set<int>{1, 2, 3}));
        const QString symbol = model.symbolName(QStringLiteral("r1"), 1);
        if (variant == Variant::numeric) {
            EXPECT_EQ(symbol, QStringLiteral("star.fill")) << "numbers are drawn as stars here";
        }
        EXPECT_EQ(symbol.isEmpty(), emoji);
        EXPECT_EQ(model.buttonTitle(6), emoji ? QString::fromUtf8("⭐") : QString());
    }
    EXPECT_TRUE(TovuMultiRatingQuestionViewModel(grid(false, {}, 5), Variant::star, false).sharesWidth());
    EXPECT_FALSE(TovuMultiRatingQuestionViewModel(grid(false, {}, 6), Variant::star, false).sharesWidth());
}

TEST(MultiRatingViewModel, RequiredGridsNeedEveryRowAndAnswersFollowRowOrder)
{
    struct Case {
        const char *name;
        bool required;
        std::vector<const char *> taps;
        std::optional<std::vector<TovuAnswerValue>> reported; // nullopt: nothing
        bool refused;
    };
    const std::vector<Case> cases{
        {"required, one row unrated", true, {"b::c1", "c::c2"}, std::nullopt, true},
        {"optional, nothing rated", false, {}, std::nullopt, false},
        {"required, nothing rated", true, {}, std::nullopt, true},
        {"rated against row order, one re-rated",
         true,
         {"c::c5", "a::c1", "b::c2", "a::c4"},
         std::vector<TovuAnswerValue>{
             {.rowId = "b", .colId = "c2"}, {.rowId = "a", .colId = "c4"}, {.rowId = "c", .colId = "c5"}},
         false},
        {"optional, partly rated",
         false,
         {"a::c3"},
         std::vector<TovuAnswerValue>{{.rowId = "a", .colId = "c3"}},
         false},
    };
    const std::vector<TovuChoice> rows{{.id = "b", .text = "Speed", .value = "b"},
                                       {.id = "a", .text = "Price", .value = "a"},
                                       {.id = "c", .text = "Support", .value = "c"}};
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        TovuMultiRatingQuestionViewModel model(grid(c.required, rows, 5), Variant::circle, true);
        Recorder recorder;
        recorder.attach(model);
        EXPECT_EQ(model.actionTitle(), QStringLiteral("Submit"));
        for (const char *tap : c.taps)
            model.tap(QString::fromUtf8(tap));
        model.submit();
        EXPECT_EQ(model.isValidationVisible(), c.refused);
        EXPECT_EQ(recorder.shakes, c.refused ? 1 : 0);
        EXPECT_EQ(model.validationMessage(), QStringLiteral("Please rate all items."));
        if (c.reported)
            EXPECT_EQ(recorder.answers, (std::vector<TovuAnswer>{{.questionId = "grid", .value = *c.reported}}));
        else
            EXPECT_TRUE(recorder.answers.empty());
    }
    TovuMultiRatingQuestionViewModel none(std::nullopt, Variant::star, false);
    none.tap(QStringLiteral("a::c1"));
    none.submit();
    EXPECT_FALSE(none.isValidationVisible());
}
