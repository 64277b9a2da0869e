// The NPS and multi-NPS pages as a respondent uses them: real clicks reach the view
// models, and the kit widgets show band colours, the chosen score and the follow-up.

#include <tovukit_io/ui/TovuFollowUpCard.h>
#include <tovukit_io/ui/TovuMultiNPSQuestionView.h>
#include <tovukit_io/ui/TovuNPSQuestionView.h>
#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuEqualWidthLayout.h>
#include <tovukit_io/ui/kit/TovuHairline.h>
#include <tovukit_io/ui/kit/TovuShake.h>
#include <tovukit_io/ui/kit/TovuTextArea.h>
#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QVBoxLayout>

#include "TovuPageTesting.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Role = TovuPlatformColors::Role;

const QColor red = QColor::fromRgbF(0.95f, 0.26f, 0.21f);
const QColor amber = QColor::fromRgbF(1.0f, 0.76f, 0.03f);
const QColor green = QColor::fromRgbF(0.18f, 0.8f, 0.44f);
const QColor white(Qt::white);

QColor grey(float level)
{
    return QColor::fromRgbF(level, level, level);
}

// A page 310 wide, as on a phone with the sheet's margins.
template<class View>
struct Shown : TovuPageTesting::Shown<View> {
    explicit Shown(View *page)
        : TovuPageTesting::Shown<View>(page, 20)
    { }
};
using TovuPageTesting::click;

void expectLook(const TovuButton *button, const QColor &background, const QColor &title, const QColor &border,
                qreal borderWidth)
{
    SCOPED_TRACE(button->text().toStdString());
    EXPECT_EQ(button->backgroundColor(), background);
    EXPECT_EQ(button->titleColor(), title);
    EXPECT_EQ(button->borderColor(), border);
    EXPECT_EQ(button->borderWidth(), borderWidth);
}

std::vector<TovuChoice> choices(std::initializer_list<const char *> ids)
{
    std::vector<TovuChoice> result;
    for (const char *id : ids)
        result.push_back({.id = id, .text = std::string("Text ") + id, .value = id});
    return result;
}

class NPSViews : public testing::Test
{
protected:
    void SetUp() override { TovuMotion::setDurationScale(0); }
    void TearDown() override { TovuMotion::setDurationScale(1); }
};

} // namespace

TEST_F(NPSViews, NPSScoresColourTheirBandsAndOpenTheirFollowUps)
{
    const TovuQuestion q{
        .id = "nps",
        .type = TovuQuestionType::nps,
        .title = "Recommend us?",
        .options = choices({"row"}),
        .npsLabels
        = TovuNPSLabels{.lower = "Never", .upper = "Surely", .detractorColor = "#12GG56", .promoterColor = "#1E90FF"},
        .followUpQuestion = "Anything else?",
        .conditionalFollowUps = std::vector<TovuConditionalFollowUp>{{.minRating = 0,
                                                                      .maxRating = 6,
                                                                      .followUpQuestion = "What went wrong?",
                                                                      .questionId = "why",
                                                                      .followUpType = TovuQuestionType::singleChoice,
                                                                      .followUpOptions = choices({"slow", "price"})}}};
    Shown page(new TovuNPSQuestionView(q, false));
    TovuNPSQuestionView &view = *page.view;
    view.onAdditionalAnswer = [&page](const TovuAnswer &answer) {
        page.calls.emplace_back("additional", answer);
    };
    const QColor blue(0x1E, 0x90, 0xFF); // dark enough for a white title

    EXPECT_FALSE(view.subtitleLabel()->isVisible());
    EXPECT_EQ(view.lowLabel()->text(), QStringLiteral("Never"));
    EXPECT_EQ(view.lowLabel()->palette().color(QPalette::WindowText), red) << "end labels ignore overrides";
    EXPECT_FALSE(view.followUpCard()->isVisible());
    EXPECT_FALSE(view.actionButton()->isVisible());
    ASSERT_EQ(view.npsButtons().size(), 11);
    for (const TovuButton *button : view.npsButtons()) {
        EXPECT_NEAR(button->width(), view.npsButtons()[0]->width(), 1) << "equal widths, to the pixel";
        EXPECT_LE(button->geometry().right(), view.width()) << "all eleven fit";
        EXPECT_EQ(button->height(), 40);
        EXPECT_EQ(button->cornerRadius(), 8);
    }
    TovuButton *seven = view.npsButtons()[7];
    EXPECT_EQ(seven->tag(), 7);
    EXPECT_EQ(seven->accessibleName(), QStringLiteral("Score 7"));
    expectLook(view.npsButtons()[6], red, white, red, 1.5);
    expectLook(seven, amber, grey(0.2f), amber, 1.5);
    expectLook(view.npsButtons()[9], blue, white, blue, 1.5);

    TovuMotion::setDurationScale(1); // the bump is seen mid-way
    click(view.npsButtons()[3]);
    EXPECT_TRUE(QTest::qWaitFor([&] { return view.npsButtons()[3]->scale() > 1.1; }, 1000));
    TovuMotion::setDurationScale(0);
    EXPECT_EQ(view.selectedScore(), 3);
    expectLook(view.npsButtons()[3], red, white, red, 3.0);
    expectLook(seven, amber, grey(0.35f), amber, 1.5);
    EXPECT_TRUE(view.followUpCard()->isVisible());
    EXPECT_EQ(view.followUpTitle()->text(), QStringLiteral("What went wrong?"));
    EXPECT_FALSE(view.followUpText()->isVisible());
    ASSERT_EQ(view.followUpOptionButtons().size(), 2);
    EXPECT_EQ(view.actionButton()->text(), QStringLiteral("Submit"));

    const QColor accent = TovuPlatformColors::color(Role::blue);
    click(view.followUpOptionButtons()[1]);
    EXPECT_EQ(view.selectedFollowUpOptionId(), "price");
    EXPECT_EQ(view.followUpOptionButtons()[1]->borderColor(), accent);
    EXPECT_EQ(view.followUpOptionButtons()[0]->borderColor(), TovuPlatformColors::color(Role::gray4));
    click(seven);
    expectLook(seven, amber, grey(0.15f), grey(0.3f), 3.0);
    EXPECT_EQ(view.selectedFollowUpOptionId(), std::nullopt);
    click(view.npsButtons()[2]);
    click(view.followUpOptionButtons()[0]);
    click(view.actionButton());

    click(view.npsButtons()[10]); // the question's own follow-up, in text
    EXPECT_TRUE(view.followUpText()->isVisible());
    EXPECT_EQ(view.followUpTitle()->text(), QStringLiteral("Anything else?"));
    click(view.followUpText());
    QTest::keyClicks(view.followUpText(), QStringLiteral(" Love it "));
    view.actionTapped();
    const std::vector<std::pair<std::string, TovuAnswer>> expected{
        {"additional", {"why", {{.rowId = "slow"}}}},
        {"answer", {"nps", {{.rowId = "row", .colId = "2"}}}},
        {"additional", {"nps_followup", {{.rowId = "nps", .text = "Love it", .type = "text"}}}},
        {"answer", {"nps", {{.rowId = "row", .colId = "10"}}}},
    };
    EXPECT_EQ(page.calls, expected);

    page.host.setLayoutDirection(Qt::RightToLeft);
    QApplication::processEvents();
    EXPECT_GT(view.npsButtons()[0]->x(), view.npsButtons()[10]->x()) << "the scale mirrors";
    EXPECT_GT(view.lowLabel()->x(), view.highLabel()->x());
}

TEST_F(NPSViews, MultiNPSRatesEachRowAndAsksForTheRest)
{
    const TovuQuestion q{.id = "multi",
                         .type = TovuQuestionType::multiNps,
                         .title = "Rate each",
                         .isRequired = true,
                         .options = choices({"r1", "r2", "r3"})};
    Shown page(new TovuMultiNPSQuestionView(q, true));
    TovuMultiNPSQuestionView &view = *page.view;
    EXPECT_TRUE(view.actionButton()->isVisible());
    EXPECT_EQ(view.actionButton()->text(), QStringLiteral("Submit"));
    ASSERT_EQ(view.scoreButtons().size(), 3);
    EXPECT_EQ(view.rowLabels()[1]->text(), QStringLiteral("Text r2"));
    EXPECT_EQ(view.lowLabels()[1]->text(), QStringLiteral("Not likely"));
    EXPECT_EQ(view.highLabels()[1]->text(), QStringLiteral("Very likely"));
    EXPECT_EQ(view.separators()[1]->color(), TovuPlatformColors::color(Role::gray5));
    const QList<TovuButton *> &second = view.scoreButtons()[1];
    ASSERT_EQ(second.size(), 11);
    EXPECT_EQ(second[8]->objectName(), QStringLiteral("r2"));
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
    expectLook(second[8], amber, grey(0.15f), grey(0.3f), 3.0);
    expectLook(second[9], green, grey(0.35f), green, 1.5);
    expectLook(view.scoreButtons()[0][8], amber, grey(0.2f), amber, 1.5); // other rows untouched
    click(view.actionButton());
    EXPECT_TRUE(view.validationLabel()->isVisible()) << "still one row short";
    EXPECT_TRUE(page.calls.empty());

    click(view.scoreButtons()[0][0]);
    EXPECT_FALSE(view.validationLabel()->isVisible());
    EXPECT_EQ(view.selectedScores().at("r2"), (TovuMultiNPSQuestionViewModel::Rating{8, "8"}));
    click(view.actionButton());
    const TovuAnswer expected{
        "multi", {{.rowId = "r1", .colId = "0"}, {.rowId = "r2", .colId = "8"}, {.rowId = "r3", .colId = "4"}}};
    ASSERT_EQ(page.calls.size(), 1u);
    EXPECT_EQ(page.calls[0].second, expected);
}
