// The rating and multi-rating pages as a respondent uses them: real clicks reach the
// view models, and the kit widgets show what they decided.

#include <tovukit_io/ui/TovuFollowUpCard.h>
#include <tovukit_io/ui/TovuMultiRatingQuestionView.h>
#include <tovukit_io/ui/TovuRatingQuestionView.h>
#include <tovukit_io/ui/kit/TovuFitLabel.h>
#include <tovukit_io/ui/kit/TovuScrollStrip.h>
#include <tovukit_io/ui/kit/TovuSymbolButton.h>
#include <tovukit_io/ui/kit/TovuTextArea.h>
#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>

#include <QApplication>
#include <QLabel>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>

#include "TovuPageTesting.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Role = TovuPlatformColors::Role;

QColor platform(Role role)
{
    return TovuPlatformColors::color(role);
}

std::vector<TovuChoice> choices(const char *prefix, int count)
{
    std::vector<TovuChoice> result;
    for (int i = 1; i <= count; ++i) {
        const std::string id = prefix + std::to_string(i);
        result.push_back({.id = id, .text = "Label " + id, .value = id});
    }
    return result;
}

using TovuPageTesting::click;
using TovuPageTesting::Shown;

TovuSymbolButton *symbol(TovuButton *button)
{
    return qobject_cast<TovuSymbolButton *>(button);
}

// Filled in the active colour, or outlined in gray 3.
void expectSymbol(TovuButton *button, const QString &name, bool filled, const QColor &active)
{
    SCOPED_TRACE(button->accessibleName().toStdString());
    ASSERT_NE(symbol(button), nullptr);
    EXPECT_EQ(symbol(button)->symbolName(), filled ? name + QStringLiteral(".fill") : name);
    EXPECT_EQ(symbol(button)->symbolTint(), filled ? active : platform(Role::gray3));
}

// A face chosen (large, opaque) or faded.
void expectFace(const TovuButton *button, bool chosen, int size, int chosenSize)
{
    EXPECT_EQ(button->font().pixelSize(), chosen ? chosenSize : size) << button->tag();
    EXPECT_EQ(button->opacity(), chosen ? 1.0 : 0.45) << button->tag();
}

class RatingViews : public testing::Test
{
protected:
    void SetUp() override { TovuMotion::setDurationScale(0); }
    void TearDown() override { TovuMotion::setDurationScale(1); }
    const QColor orange = platform(Role::orange);
};

} // namespace

TEST_F(RatingViews, RatingButtonsFillByVariantAndTheActionReportsTheRating)
{
    TovuQuestion q{
        .id = "q", .type = TovuQuestionType::rating, .title = "<i>How</i> was it?", .options = choices("o", 1)};
    { // Stars fill up to the tap; the action appears and reports.
        Shown page(new TovuRatingQuestionView(q, TovuRatingVariant::star, 5, false));
        TovuRatingQuestionView &view = *page.view;
        EXPECT_EQ(view.titleLabel()->textFormat(), Qt::PlainText);
        ASSERT_EQ(view.ratingButtons().size(), 5);
        EXPECT_FALSE(view.actionButton()->isVisible());
        EXPECT_FALSE(view.followUpCard()->isVisible());
        EXPECT_EQ(view.ratingButtons()[2]->accessibleName(), QStringLiteral("3 of 5 stars"));
        EXPECT_EQ(view.ratingButtons()[2]->height(), 50);
        EXPECT_EQ(symbol(view.ratingButtons()[2])->symbolPointSize(), 32);
        EXPECT_EQ(symbol(view.ratingButtons()[2])->symbolWeight(), QFont::Medium);
        click(view.ratingButtons()[2]);
        EXPECT_EQ(view.selectedRating(), 3);
        for (TovuButton *button : view.ratingButtons())
            expectSymbol(button, QStringLiteral("star"), button->tag() <= 3, orange);
        EXPECT_EQ(view.ratingButtons()[2]->scale(), 1.0) << "the bump is over";
        EXPECT_TRUE(view.actionButton()->isVisible());
        EXPECT_EQ(view.actionButton()->text(), QStringLiteral("Next \u2192"));
        click(view.actionButton());
        EXPECT_EQ(page.answers,
                  (std::vector<TovuAnswer>{{.questionId = "q", .value = {{.rowId = "o1", .colId = "3"}}}}));
    }
    { // Hearts mark only the tap, in the question's colour.
        q.ratingColor = "#E11D48";
        Shown page(new TovuRatingQuestionView(q, TovuRatingVariant::heart, 5, true));
        click(page.view->ratingButtons()[4]);
        click(page.view->ratingButtons()[2]);
        for (TovuButton *button : page.view->ratingButtons())
            expectSymbol(button, QStringLiteral("heart"), button->tag() == 3, QColor(0xE1, 0x1D, 0x48));
        EXPECT_EQ(page.view->actionButton()->text(), QStringLiteral("Submit"));
        q.ratingColor.reset();
    }
    { // Faces: a star from the sixth on; the chosen one large and opaque.
        Shown page(new TovuRatingQuestionView(q, TovuRatingVariant::emoji, 7, false));
        const QList<TovuButton *> &faces = page.view->ratingButtons();
        EXPECT_EQ(faces[0]->text(), QString::fromUtf8("😞"));
        EXPECT_EQ(faces[5]->text(), QString::fromUtf8("⭐"));
        EXPECT_EQ(faces[6]->text(), QString::fromUtf8("⭐"));
        EXPECT_EQ(faces[0]->height(), 60);
        click(faces[1]);
        for (const TovuButton *face : faces)
            expectFace(face, face->tag() == 2, 34, 42);
    }
    { // Numbers fill up to the tap in the accent.
        Shown page(new TovuRatingQuestionView(q, TovuRatingVariant::numeric, 5, false));
        click(page.view->ratingButtons()[2]);
        for (const TovuButton *tile : page.view->ratingButtons()) {
            const bool on = tile->tag() <= 3;
            EXPECT_EQ(tile->text(), QString::number(tile->tag()));
            EXPECT_EQ(tile->backgroundColor(), on ? platform(Role::blue) : platform(Role::gray6));
            EXPECT_EQ(tile->titleColor(), on ? QColor(Qt::white) : platform(Role::label));
            EXPECT_EQ(tile->cornerRadius(), 10);
            EXPECT_EQ(tile->height(), 46);
        }
    }
    // Columns with labels and a follow-up whose text is never reported.
    q.columns = choices("c", 5);
    q.showColLabels = true;
    q.conditionalFollowUps = std::vector<TovuConditionalFollowUp>{
        {.minRating = 4, .maxRating = 5, .followUpQuestion = "What did you like?"}};
    Shown page(new TovuRatingQuestionView(q, TovuRatingVariant::circle, 3, false));
    TovuRatingQuestionView &view = *page.view;
    ASSERT_EQ(view.ratingButtons().size(), 5);
    const QList<TovuFitLabel *> labels = view.findChildren<TovuFitLabel *>();
    ASSERT_EQ(labels.size(), 5);
    EXPECT_EQ(labels[4]->text(), QStringLiteral("Label c5"));
    EXPECT_GT(labels[4]->mapTo(&view, QPoint()).y(), view.ratingButtons()[4]->mapTo(&view, QPoint()).y());
    EXPECT_EQ(view.ratingButtons()[4]->accessibleName(), QStringLiteral("5 of 5 circles, Label c5"));
    click(view.ratingButtons()[4]);
    EXPECT_TRUE(view.followUpCard()->isVisible());
    EXPECT_EQ(view.followUpTitle()->text(), QStringLiteral("What did you like?"));
    EXPECT_EQ(view.actionButton()->text(), QStringLiteral("Submit"));
    click(view.followUpText());
    QTest::keyClicks(view.followUpText(), QStringLiteral("the colours"));
    click(view.actionButton());
    EXPECT_EQ(page.answers, (std::vector<TovuAnswer>{{.questionId = "q", .value = {{.rowId = "o1", .colId = "c5"}}}}));
    click(view.ratingButtons()[0]);
    EXPECT_FALSE(view.followUpCard()->isVisible());
    EXPECT_EQ(view.actionButton()->text(), QStringLiteral("Next \u2192"));

    page.host.setLayoutDirection(Qt::RightToLeft);
    QApplication::processEvents();
    EXPECT_GT(view.ratingButtons()[0]->mapTo(&view, QPoint()).x(), view.ratingButtons()[4]->mapTo(&view, QPoint()).x());
}

TEST_F(RatingViews, MultiRatingRowsFillApartAndReportTogether)
{
    TovuQuestion q{.id = "grid",
                   .type = TovuQuestionType::multiRating,
                   .title = "Rate each",
                   .isRequired = true,
                   .options = choices("r", 2),
                   .columns = choices("c", 5)};
    { // Five columns share the width; a required grid wants every row.
        Shown page(new TovuMultiRatingQuestionView(q, TovuRatingVariant::numeric, false));
        TovuMultiRatingQuestionView &view = *page.view;
        EXPECT_FALSE(view.subtitleLabel()->isVisible());
        const QList<TovuButton *> &r1 = view.rowButtons().at("r1");
        const QList<TovuButton *> &r2 = view.rowButtons().at("r2");
        ASSERT_EQ(r1.size(), 5);
        EXPECT_EQ(r1[2]->objectName(), QStringLiteral("r1::c3"));
        EXPECT_EQ(r1[2]->accessibleName(), QStringLiteral("Label r1, 3 of 5 stars"));
        TovuScrollStrip *strip = view.buttonStrips()[0];
        EXPECT_EQ(strip->height(), 44);
        EXPECT_EQ(strip->horizontalScrollBar()->maximum(), 0);
        EXPECT_LE(r1[0]->width() - r1[4]->width(), 1);
        EXPECT_GE(r1[0]->width() * 5 + 4 * 8, strip->width() - 4) << "the buttons fill the strip";
        EXPECT_EQ(r1[0]->height(), 36);
        EXPECT_EQ(symbol(r1[0])->symbolPointSize(), 28);

        click(r1[2]);
        for (TovuButton *button : r1)
            expectSymbol(button, QStringLiteral("star"), button->tag() <= 3, orange);
        for (TovuButton *button : r2)
            expectSymbol(button, QStringLiteral("star"), false, orange);
        click(view.actionButton());
        EXPECT_TRUE(view.validationLabel()->isVisible());
        EXPECT_EQ(view.validationLabel()->text(), QStringLiteral("Please rate all items."));
        EXPECT_TRUE(page.answers.empty());

        click(r2[0]);
        click(r1[1]); // re-rated
        EXPECT_FALSE(view.validationLabel()->isVisible());
        EXPECT_EQ(view.selectedCols(), (std::map<std::string, std::string>{{"r1", "c2"}, {"r2", "c1"}}));
        click(view.actionButton());
        const std::vector<TovuAnswerValue> values{{.rowId = "r1", .colId = "c2"}, {.rowId = "r2", .colId = "c1"}};
        EXPECT_EQ(page.answers, (std::vector<TovuAnswer>{{.questionId = "grid", .value = values}}));
    }
    // Seven labelled faces keep their widths and scroll.
    q.columns = choices("c", 7);
    q.showColLabels = true;
    q.subtitle = "Tap a face";
    Shown page(new TovuMultiRatingQuestionView(q, TovuRatingVariant::emoji, true));
    TovuMultiRatingQuestionView &view = *page.view;
    EXPECT_TRUE(view.subtitleLabel()->isVisible());
    EXPECT_EQ(view.actionButton()->text(), QStringLiteral("Submit"));
    TovuScrollStrip *strip = view.buttonStrips()[1];
    EXPECT_EQ(strip->height(), 60);
    EXPECT_GT(strip->horizontalScrollBar()->maximum(), 0);
    const QList<TovuButton *> &faces = view.rowButtons().at("r2");
    EXPECT_EQ(faces[4]->text(), QString::fromUtf8("😁"));
    EXPECT_EQ(faces[5]->text(), QString::fromUtf8("⭐"));
    EXPECT_EQ(faces[0]->height(), 44);
    page.host.setLayoutDirection(Qt::RightToLeft);
    QApplication::processEvents();
    EXPECT_GT(faces[0]->mapTo(strip, QPoint()).x(), faces[1]->mapTo(strip, QPoint()).x()) << "mirrored";
    strip->horizontalScrollBar()->setValue(strip->horizontalScrollBar()->maximum());
    click(faces[6]);
    for (const TovuButton *face : faces)
        expectFace(face, face->tag() == 7, 30, 36);
    for (const TovuButton *face : view.rowButtons().at("r1"))
        expectFace(face, false, 30, 36);
}
