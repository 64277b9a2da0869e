// The NPS and multi-NPS pages as a respondent uses them: real clicks reach the view
// models, and the kit widgets show the looks, follow-ups and messages those decide.

#include <tovukit_io/ui/TovuFollowUpCard.h>
#include <tovukit_io/ui/TovuMultiNPSQuestionView.h>
#include <tovukit_io/ui/TovuNPSQuestionView.h>
#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuHairline.h>
#include <tovukit_io/ui/kit/TovuShake.h>
#include <tovukit_io/ui/kit/TovuTextArea.h>
#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>

#include <QApplication>
#include <QLabel>
#include <QTest>

#include "TovuPageTesting.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Band = TovuNPSBands::Band;
using Role = TovuPlatformColors::Role;
using TovuPageTesting::click;
using TovuPageTesting::Shown;
constexpr int sheetMargin = 20; // the page is 310 wide, as on a phone

std::vector<TovuChoice> choices(std::initializer_list<const char *> ids)
{
    std::vector<TovuChoice> result;
    for (const char *id : ids)
        result.push_back({.id = id, .text = std::string("Text ") + id, .value = id});
    return result;
}

// Every button of a scale (of the row `rowId`, on a multi-NPS page) wears the look its
// view model gives its score.
template<class Model, class... RowId>
void expectLooks(const QList<TovuButton *> &buttons, const Model &model, const RowId &...rowId)
{
    for (const TovuButton *b : buttons) {
        const TovuNPSBands::Look shown{b->backgroundColor(), b->titleColor(), b->borderColor(), b->borderWidth()};
        EXPECT_EQ(shown, model.scoreLook(rowId..., b->tag())) << "score " << b->tag();
    }
}

} // namespace

TEST(NPSViews, NPSPage)
{
    TovuMotion::setDurationScale(0);
    const TovuQuestion q{.id = "nps",
                         .type = TovuQuestionType::nps,
                         .title = "Recommend us?",
                         .options = choices({"row"}),
                         .npsLabels = TovuNPSLabels{.lower = "Never", .upper = "Surely", .promoterColor = "#1E90FF"},
                         .followUpQuestion = "Anything else?",
                         .conditionalFollowUps
                         = std::vector<TovuConditionalFollowUp>{{.minRating = 0,
                                                                 .maxRating = 6,
                                                                 .followUpQuestion = "What went wrong?",
                                                                 .questionId = "why",
                                                                 .followUpType = TovuQuestionType::singleChoice,
                                                                 .followUpOptions = choices({"slow", "price"})}}};
    Shown page(new TovuNPSQuestionView(q, false), sheetMargin);
    TovuNPSQuestionView &view = *page.view;
    view.onAdditionalAnswer = [&page](const TovuAnswer &answer) {
        page.calls.emplace_back("additional", answer);
    };
    const QList<TovuButton *> &scores = view.npsButtons();

    EXPECT_FALSE(view.subtitleLabel()->isVisible());
    EXPECT_EQ(view.lowLabel()->text(), QStringLiteral("Never"));
    EXPECT_EQ(view.highLabel()->text(), QStringLiteral("Surely"));
    EXPECT_EQ(view.lowLabel()->palette().color(QPalette::WindowText), TovuNPSBands::defaultColor(Band::detractor));
    EXPECT_EQ(view.highLabel()->palette().color(QPalette::WindowText), TovuNPSBands::defaultColor(Band::promoter))
        << "end labels ignore overrides";
    EXPECT_FALSE(view.followUpCard()->isVisible());
    EXPECT_FALSE(view.actionButton()->isVisible());
    ASSERT_EQ(scores.size(), 11);
    for (const TovuButton *button : scores) {
        EXPECT_NEAR(button->width(), scores[0]->width(), 1) << "equal widths, to the pixel";
        EXPECT_LE(button->geometry().right(), view.width()) << "all eleven fit";
        EXPECT_EQ(button->height(), 40);
        EXPECT_EQ(button->cornerRadius(), 8);
    }
    EXPECT_EQ(scores[7]->accessibleName(), QStringLiteral("Score 7"));
    expectLooks(scores, *view.viewModel());

    TovuMotion::setDurationScale(1); // the bump is seen mid-way
    click(scores[3]);
    EXPECT_TRUE(QTest::qWaitFor([&] { return scores[3]->scale() > 1.1; }, 1000));
    TovuMotion::setDurationScale(0);
    EXPECT_EQ(scores[3]->borderWidth(), 3.0);
    expectLooks(scores, *view.viewModel());
    EXPECT_TRUE(view.followUpCard()->isVisible());
    EXPECT_EQ(view.followUpTitle()->text(), QStringLiteral("What went wrong?"));
    EXPECT_FALSE(view.followUpText()->isVisible());
    ASSERT_EQ(view.followUpOptionButtons().size(), 2);
    EXPECT_TRUE(view.actionButton()->isVisible());
    click(view.followUpOptionButtons()[1]);
    EXPECT_EQ(view.followUpOptionButtons()[1]->borderColor(), TovuPlatformColors::color(Role::blue));
    EXPECT_EQ(view.followUpOptionButtons()[0]->borderColor(), TovuPlatformColors::color(Role::gray4));

    click(scores[10]); // the question's own follow-up, in text
    EXPECT_TRUE(view.followUpText()->isVisible());
    EXPECT_EQ(view.followUpTitle()->text(), QStringLiteral("Anything else?"));
    click(view.followUpText());
    QTest::keyClicks(view.followUpText(), QStringLiteral(" Love it "));
    click(view.actionButton());
    click(scores[2]); // the choices again, built anew
    click(view.followUpOptionButtons()[0]);
    click(view.actionButton());
    const std::vector<std::pair<std::string, TovuAnswer>> expected{
        {"additional", {"nps_followup", {{.rowId = "nps", .text = "Love it", .type = "text"}}}},
        {"answer", {"nps", {{.rowId = "row", .colId = "10"}}}},
        {"additional", {"why", {{.rowId = "slow"}}}},
        {"answer", {"nps", {{.rowId = "row", .colId = "2"}}}},
    };
    EXPECT_EQ(page.calls, expected);

    page.host.setLayoutDirection(Qt::RightToLeft);
    QApplication::processEvents();
    EXPECT_GT(scores[0]->x(), scores[10]->x()) << "the scale mirrors";
    EXPECT_GT(view.lowLabel()->x(), view.highLabel()->x());
}

TEST(NPSViews, MultiNPSPage)
{
    TovuMotion::setDurationScale(0);
    const TovuQuestion q{.id = "multi",
                         .type = TovuQuestionType::multiNps,
                         .title = "Rate each",
                         .isRequired = true,
                         .options = choices({"r1", "r2", "r3"})};
    Shown page(new TovuMultiNPSQuestionView(q, true), sheetMargin);
    TovuMultiNPSQuestionView &view = *page.view;
    EXPECT_TRUE(view.actionButton()->isVisible());
    ASSERT_EQ(view.scoreButtons().size(), 3);
    EXPECT_EQ(view.rowLabels()[1]->text(), QStringLiteral("Text r2"));
    EXPECT_EQ(view.lowLabels()[1]->text(), QStringLiteral("Not likely"));
    EXPECT_EQ(view.separators()[1]->color(), TovuPlatformColors::color(Role::gray5));
    const QList<TovuButton *> &second = view.scoreButtons()[1];
    ASSERT_EQ(second.size(), 11);
    EXPECT_EQ(second[8]->accessibleName(), QStringLiteral("Score 8"));
    EXPECT_EQ(second[8]->accessibleDescription(), QStringLiteral("Text r2"));
    EXPECT_EQ(second[8]->height(), 36);
    EXPECT_EQ(second[8]->cornerRadius(), 7);

    TovuMotion::setDurationScale(1); // the message shakes
    click(view.actionButton());
    EXPECT_TRUE(QTest::qWaitFor([&] { return TovuShake::offset(view.validationLabel()) < 0; }, 1000));
    TovuMotion::setDurationScale(0);
    EXPECT_TRUE(view.validationLabel()->isVisible());
    EXPECT_EQ(view.validationLabel()->text(), QStringLiteral("Please rate all items."));

    click(view.scoreButtons()[2][4]);
    click(second[9]);
    click(second[8]); // re-rated
    EXPECT_FALSE(view.validationLabel()->isVisible()) << "a tap hides the message";
    EXPECT_EQ(second[8]->borderWidth(), 3.0);
    for (int row = 0; row < 3; ++row)
        expectLooks(view.scoreButtons()[row], *view.viewModel(), "r" + std::to_string(row + 1));
    click(view.scoreButtons()[0][0]);
    click(view.actionButton());
    const TovuAnswer expected{
        "multi", {{.rowId = "r1", .colId = "0"}, {.rowId = "r2", .colId = "8"}, {.rowId = "r3", .colId = "4"}}};
    EXPECT_EQ(page.answers, std::vector<TovuAnswer>{expected});

    page.host.setLayoutDirection(Qt::RightToLeft);
    QApplication::processEvents();
    EXPECT_GT(second[0]->x(), second[10]->x()) << "each scale mirrors";
    EXPECT_GT(view.lowLabels()[1]->x(), view.highLabels()[1]->x());
}
