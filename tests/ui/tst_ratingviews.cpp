// The rating and multi-rating pages as a respondent uses them: real clicks reach the
// view models, and the kit widgets show the symbols, faces and tiles those fill.

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

#include "TovuPageTesting.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Role = TovuPlatformColors::Role;
using TovuPageTesting::click;
using TovuPageTesting::Shown;

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

// Stars filled in the active colour up to `rating`, outlined in gray 3 after it; only the
// tapped one checked, as a screen reader tells.
void expectStars(const QList<TovuButton *> &buttons, int rating, const QColor &active)
{
    for (TovuButton *button : buttons) {
        SCOPED_TRACE(button->accessibleName().toStdString());
        const bool filled = button->tag() <= rating;
        const auto *star = qobject_cast<TovuSymbolButton *>(button);
        ASSERT_NE(star, nullptr);
        EXPECT_EQ(star->symbolName(), filled ? QStringLiteral("star.fill") : QStringLiteral("star"));
        EXPECT_EQ(star->symbolTint(), filled ? active : platform(Role::gray3));
        EXPECT_EQ(button->isChecked(), button->tag() == rating);
    }
}

// Only the face at `chosen` large and opaque; the others small and faded.
void expectFaces(const QList<TovuButton *> &faces, int chosen, int size, int chosenSize)
{
    for (const TovuButton *face : faces) {
        EXPECT_EQ(face->font().pixelSize(), face->tag() == chosen ? chosenSize : size) << face->tag();
        EXPECT_EQ(face->opacity(), face->tag() == chosen ? 1.0 : 0.45) << face->tag();
    }
}

} // namespace

TEST(RatingViews, RatingPage)
{
    TovuMotion::setDurationScale(0); // no bump to wait for
    TovuQuestion q{.id = "q",
                   .type = TovuQuestionType::rating,
                   .title = "<i>How</i> was it?",
                   .options = choices("o", 1),
                   .columns = choices("c", 5),
                   .conditionalFollowUps
                   = std::vector<TovuConditionalFollowUp>{{.minRating = 4,
                                                           .maxRating = 5,
                                                           .followUpQuestion = "What did you like?"}},
                   .showColLabels = true,
                   .ratingColor = "#E11D48"};
    { // Labelled stars fill up to the tap; a follow-up opens whose text is never reported.
        Shown page(new TovuRatingQuestionView(q, TovuRatingVariant::star, 3, false));
        TovuRatingQuestionView &view = *page.view;
        const QList<TovuButton *> &stars = view.ratingButtons();
        EXPECT_EQ(view.titleLabel()->textFormat(), Qt::PlainText);
        ASSERT_EQ(stars.size(), 5);
        EXPECT_FALSE(view.actionButton()->isVisible());
        EXPECT_FALSE(view.followUpCard()->isVisible());
        EXPECT_EQ(stars[4]->accessibleName(), QStringLiteral("5 of 5 stars, Label c5"));
        EXPECT_EQ(stars[4]->height(), 50);
        EXPECT_EQ(qobject_cast<TovuSymbolButton *>(stars[4])->symbolPointSize(), 32);
        EXPECT_EQ(qobject_cast<TovuSymbolButton *>(stars[4])->symbolWeight(), QFont::Medium);
        const QList<TovuFitLabel *> labels = view.findChildren<TovuFitLabel *>();
        ASSERT_EQ(labels.size(), 5);
        EXPECT_EQ(labels[4]->text(), QStringLiteral("Label c5"));
        EXPECT_GT(labels[4]->mapTo(&view, QPoint()).y(), stars[4]->mapTo(&view, QPoint()).y()) << "under its star";
        expectStars(stars, 0, QColor());

        click(stars[2]);
        expectStars(stars, 3, QColor(0xE1, 0x1D, 0x48));
        EXPECT_TRUE(view.actionButton()->isVisible());
        click(stars[4]);
        EXPECT_TRUE(view.followUpCard()->isVisible());
        EXPECT_EQ(view.followUpTitle()->text(), QStringLiteral("What did you like?"));
        click(view.followUpText());
        QTest::keyClicks(view.followUpText(), QStringLiteral("the colours"));
        click(view.actionButton());
        EXPECT_EQ(page.answers, (std::vector<TovuAnswer>{{"q", {{.rowId = "o1", .colId = "c5"}}}}));
        click(stars[0]);
        EXPECT_FALSE(view.followUpCard()->isVisible());

        page.host.setLayoutDirection(Qt::RightToLeft);
        QApplication::processEvents();
        EXPECT_GT(stars[0]->mapTo(&view, QPoint()).x(), stars[4]->mapTo(&view, QPoint()).x()) << "mirrored";
    }
    q.columns.reset();
    { // Faces: a star from the sixth on; the chosen one large and opaque.
        Shown page(new TovuRatingQuestionView(q, TovuRatingVariant::emoji, 7, false));
        const QList<TovuButton *> &faces = page.view->ratingButtons();
        EXPECT_EQ(faces[0]->text(), QString::fromUtf8("😞"));
        EXPECT_EQ(faces[5]->text(), QString::fromUtf8("⭐"));
        EXPECT_EQ(faces[0]->height(), 60);
        click(faces[1]);
        expectFaces(faces, 2, 34, 42);
    }
    // Numbers fill up to the tap in the accent.
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

TEST(RatingViews, MultiRatingPage)
{
    TovuMotion::setDurationScale(0);
    TovuQuestion q{.id = "grid",
                   .type = TovuQuestionType::multiRating,
                   .title = "Rate each",
                   .isRequired = true,
                   .options = choices("r", 2),
                   .columns = choices("c", 5)};
    { // Five columns share the width; numbers are drawn as stars; every row is wanted.
        Shown page(new TovuMultiRatingQuestionView(q, TovuRatingVariant::numeric, false));
        TovuMultiRatingQuestionView &view = *page.view;
        EXPECT_FALSE(view.subtitleLabel()->isVisible());
        const QList<TovuButton *> &r1 = view.rowButtons().at("r1");
        const QList<TovuButton *> &r2 = view.rowButtons().at("r2");
        ASSERT_EQ(r1.size(), 5);
        EXPECT_EQ(r1[2]->accessibleName(), QStringLiteral("Label r1, 3 of 5 stars"));
        TovuScrollStrip *strip = view.buttonStrips()[0];
        EXPECT_EQ(strip->height(), 44);
        EXPECT_EQ(strip->horizontalScrollBar()->maximum(), 0);
        EXPECT_LE(r1[0]->width() - r1[4]->width(), 1);
        EXPECT_GE(r1[0]->width() * 5 + 4 * 8, strip->width() - 4) << "the buttons fill the strip";
        EXPECT_EQ(r1[0]->height(), 36);
        EXPECT_EQ(qobject_cast<TovuSymbolButton *>(r1[0])->symbolPointSize(), 28);

        click(r1[2]);
        expectStars(r1, 3, platform(Role::orange));
        expectStars(r2, 0, QColor());
        click(view.actionButton());
        EXPECT_TRUE(view.validationLabel()->isVisible());
        EXPECT_EQ(view.validationLabel()->text(), QStringLiteral("Please rate all items."));
        click(r2[0]);
        click(r1[1]); // re-rated
        expectStars(r1, 2, platform(Role::orange));
        EXPECT_FALSE(view.validationLabel()->isVisible());
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
    TovuScrollStrip *strip = view.buttonStrips()[1];
    EXPECT_EQ(strip->height(), 60);
    EXPECT_GT(strip->horizontalScrollBar()->maximum(), 0);
    const QList<TovuButton *> &faces = view.rowButtons().at("r2");
    EXPECT_EQ(faces[5]->text(), QString::fromUtf8("⭐"));
    EXPECT_EQ(faces[6]->accessibleName(), QStringLiteral("Label r2, 7 of 7, Label c7"));
    EXPECT_EQ(faces[0]->height(), 44);
    page.host.setLayoutDirection(Qt::RightToLeft);
    QApplication::processEvents();
    EXPECT_GT(faces[0]->mapTo(strip, QPoint()).x(), faces[1]->mapTo(strip, QPoint()).x()) << "mirrored";
    strip->horizontalScrollBar()->setValue(strip->horizontalScrollBar()->maximum());
    click(faces[6]);
    expectFaces(faces, 7, 30, 36);
    expectFaces(view.rowButtons().at("r1"), 0, 30, 36);
}
