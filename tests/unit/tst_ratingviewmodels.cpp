// The rating and multi-rating pages driven through their view models, without any
// widget: the variant a survey asks for, what a tap fills, which follow-up opens and
// what the action reports.

#include <tovukit_io/model/TovuRatingVariant.h>
#include <tovukit_io/viewmodel/TovuMultiRatingQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>
#include <tovukit_io/viewmodel/TovuRatingQuestionViewModel.h>

#include "TovuViewModelTesting.h"

#include <gtest/gtest.h>

#include <array>
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

} // namespace

TEST(RatingVariant, SurveyStylesMapIgnoringCaseAndRawValuesRoundTrip)
{
    EXPECT_EQ(ratingVariantFrom("heart"), Variant::heart);
    EXPECT_EQ(ratingVariantFrom("HeArT"), Variant::heart);
    EXPECT_EQ(ratingVariantFrom("circle"), Variant::circle);
    EXPECT_EQ(ratingVariantFrom("tile"), Variant::tile);
    EXPECT_EQ(ratingVariantFrom("Emoji"), Variant::emoji);
    // Anything else is a star: "stars", other plurals, numbers, blanks, "ÉMOJI" (non-ASCII
    // bytes pass through) and text that is not UTF-8 at all.
    for (const char *style :
         {"stars", "STARS", "star", "hearts", "numeric", "NUMERIC", " emoji", "", "\xC3\x89MOJI", "\xFF\xFE\x80"})
        EXPECT_EQ(ratingVariantFrom(style), Variant::star) << style;
    EXPECT_EQ(ratingVariantFrom(std::nullopt), Variant::star);
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
    // Columns, maxRating, buttons.
    const std::vector<std::tuple<std::optional<int>, int, int>> cases{
        {7, 5, 7},  {std::nullopt, 5, 5},        {std::nullopt, 0, 1}, {0, 3, 3}, {std::nullopt, -4, 1},
        {2, 10, 2}, {std::nullopt, 1 << 30, 100}};
    for (const auto &[columns, maxRating, buttons] : cases) {
        SCOPED_TRACE(maxRating);
        const TovuQuestion q = ratingQuestion(columns ? std::optional(choices("c", *columns)) : std::nullopt);
        EXPECT_EQ(TovuRatingQuestionViewModel(q, Variant::star, maxRating, false).buttonCount(), buttons);
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
    // After rating 3 of 5: the buttons marked, the symbols of buttons 2 and 3, the title of
    // button 3 and what a screen reader says for button 2.
    const std::vector<std::tuple<Variant, std::set<int>, const char *, const char *, const char *>> cases{
        {Variant::star, {1, 2, 3}, "star.fill star.fill", "", "2 of 5 stars"},
        {Variant::numeric, {1, 2, 3}, " ", "3", "2 of 5"},
        {Variant::heart, {3}, "heart heart.fill", "", "2 of 5 hearts"},
        {Variant::circle, {3}, "circle circle.fill", "", "2 of 5 circles"},
        {Variant::tile, {3}, "square square.fill", "", "2 of 5 tiles"},
        {Variant::emoji, {3}, " ", "\xF0\x9F\x98\x90", "2 of 5"}};
    for (const auto &[variant, marked, symbols, titleOfThree, nameOfTwo] : cases) {
        SCOPED_TRACE(std::string(rawValue(variant)));
        TovuRatingQuestionViewModel model(ratingQuestion(), variant, 5, false);
        EXPECT_FALSE(model.isActionVisible());
        model.rate(0);
        model.rate(6);
        EXPECT_FALSE(model.selectedRating()) << "outside the scale: ignored";
        model.rate(3);
        EXPECT_EQ(model.selectedRating(), 3);
        std::set<int> chosen;
        for (int rating = 0; rating <= 6; ++rating) {
            if (model.isSelected(rating))
                chosen.insert(rating);
        }
        EXPECT_EQ(chosen, marked);
        EXPECT_EQ(QString(model.symbolName(2) + u' ' + model.symbolName(3)), QString::fromUtf8(symbols));
        EXPECT_EQ(model.buttonTitle(3), QString::fromUtf8(titleOfThree));
        EXPECT_EQ(model.accessibleName(2), QString::fromUtf8(nameOfTwo));
        EXPECT_TRUE(model.isActionVisible());
    }
    const TovuRatingQuestionViewModel faces(ratingQuestion(), Variant::emoji, 10, false);
    const QStringList expected = QString::fromUtf8("😞 😕 😐 🙂 😁 ⭐ ⭐ ⭐ ⭐ ⭐").split(u' ');
    for (int rating = 1; rating <= 10; ++rating)
        EXPECT_EQ(faces.buttonTitle(rating), expected[rating - 1]) << rating;
}

TEST(RatingViewModel, ATapOpensTheFirstMatchingFollowUpAndTheActionReportsOnlyTheRating)
{
    TovuQuestion q = ratingQuestion(choices("c", 5));
    q.options = choices("o", 2);
    q.conditionalFollowUps = std::vector<TovuConditionalFollowUp>{
        {.minRating = 1, .maxRating = 2, .followUpQuestion = "What went wrong?"},
        {.minRating = 2, .maxRating = 3, .followUpQuestion = "Overlapping"},
        {.minRating = 5, .maxRating = 5, .followUpQuestion = "What did you love?"}};
    q.followUpQuestion = "Anything else?";
    TovuQuestion plain = ratingQuestion(); // no options, columns or follow-ups
    const QString next = QStringLiteral("Next \u2192");
    const QString submit = QStringLiteral("Submit");
    // The question, whether it is the last, the rating, the follow-up ("" for none), the
    // action, the column id reported.
    const std::vector<std::tuple<TovuQuestion, bool, int, const char *, QString, std::string>> cases{
        {q, false, 1, "What went wrong?", submit, "c1"},
        {q, false, 2, "What went wrong?", submit, "c2"},
        {q, false, 3, "Overlapping", submit, "c3"},
        {q, false, 4, "Anything else?", submit, "c4"},
        {q, false, 5, "What did you love?", submit, "c5"},
        {plain, false, 4, "", next, "4"},
        {plain, true, 5, "", submit, "5"}};
    for (const auto &[question, isLast, rating, followUp, action, colId] : cases) {
        SCOPED_TRACE(rating);
        TovuRatingQuestionViewModel model(question, Variant::heart, 5, isLast);
        Recorder recorder;
        recorder.attach(model);
        model.submit(); // nothing rated yet: nothing at all
        model.rate(rating);
        EXPECT_EQ(model.isFollowUpVisible(), *followUp != '\0');
        EXPECT_EQ(model.followUpText(), QString::fromUtf8(followUp));
        EXPECT_EQ(model.actionTitle(), action);
        model.submit();
        model.submit();
        ASSERT_EQ(recorder.answers.size(), 2u);
        const std::string rowId = recorder.answers[0].value.at(0).rowId;
        EXPECT_EQ(recorder.answers[0], (TovuAnswer{"q", {{.rowId = rowId, .colId = colId}}})) << "no follow-up text";
        if (question.options) {
            EXPECT_EQ(rowId, "o1");
        } else {
            EXPECT_TRUE(TovuViewModelTesting::isUpperCaseUuid(rowId)) << rowId;
            EXPECT_NE(recorder.answers[1].value.at(0).rowId, rowId) << "a fresh row id on every submit";
        }
        EXPECT_EQ(recorder.shakes, 0);
    }
    plain.conditionalFollowUps = q.conditionalFollowUps; // rating 4 matches none and there is no fallback
    TovuRatingQuestionViewModel gap(plain, Variant::star, 5, false);
    gap.rate(1);
    gap.rate(4);
    EXPECT_FALSE(gap.isFollowUpVisible()) << "each tap re-evaluates";
    EXPECT_EQ(gap.actionTitle(), next);
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
    EXPECT_EQ(TovuMultiRatingQuestionViewModel::identifier("b", "c3"), QStringLiteral("b::c3"));
    const std::vector<TovuChoice> rows{{.id = "b", .text = "Speed", .value = "b"},
                                       {.id = "a", .text = "Price", .value = "a"},
                                       {.id = "c", .text = "Support", .value = "c"}};
    // Whether the grid is required, the taps, whether submit is refused, what it reports
    // (nothing when empty). Taps that are not "row::column" of this grid rate nothing.
    const std::vector<std::tuple<bool, std::vector<const char *>, bool, std::vector<TovuAnswerValue>>> cases{
        {true, {"b::c1", "c::c2", "a", "a::c1::x", "", "::", "z::c1", "a::c9", "a:c1"}, true, {}},
        {false, {}, false, {}},
        {true, {}, true, {}},
        // Rated against row order, one row twice.
        {true,
         {"c::c5", "a::c1", "b::c2", "a::c4"},
         false,
         {{.rowId = "b", .colId = "c2"}, {.rowId = "a", .colId = "c4"}, {.rowId = "c", .colId = "c5"}}},
        {false, {"a::c3"}, false, {{.rowId = "a", .colId = "c3"}}}};
    for (const auto &[required, taps, refused, reported] : cases) {
        SCOPED_TRACE(testing::Message() << required << ", " << taps.size() << " taps");
        TovuMultiRatingQuestionViewModel model(grid(required, rows, 5), Variant::circle, true);
        Recorder recorder;
        recorder.attach(model);
        EXPECT_EQ(model.actionTitle(), QStringLiteral("Submit"));
        for (const char *tap : taps)
            model.tap(QString::fromUtf8(tap));
        model.submit();
        EXPECT_EQ(model.isValidationVisible(), refused);
        EXPECT_EQ(recorder.shakes, refused ? 1 : 0);
        EXPECT_EQ(model.validationMessage(), QStringLiteral("Please rate all items."));
        const std::vector<TovuAnswer> expected{{.questionId = "grid", .value = reported}};
        EXPECT_EQ(recorder.answers, reported.empty() ? std::vector<TovuAnswer>{} : expected);
        model.tap(QStringLiteral("a::c2"));
        EXPECT_FALSE(model.isValidationVisible()) << "a tap hides the message";
    }
    TovuMultiRatingQuestionViewModel none(std::nullopt, Variant::star, false);
    none.tap(QStringLiteral("a::c1"));
    none.submit();
    EXPECT_FALSE(none.isValidationVisible());
}
