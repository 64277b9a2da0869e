// The Qt Quick sheet and its pages in a QML host, operated as a respondent and a
// screen reader would: real clicks and keys on the window, controls found by
// their accessible role and name. Behaviour itself is the view models' (tested
// there); these tests check that taps reach the model and the page shows its state.

#include "TovuQuickHost.h"
#include "TovuQuickSurveyClicker.h"

#include <tovukit_io/platform/TovuUrlOpener.h>
#include <tovukit_io/quick/TovuQuickPresenter.h>
#include <tovukit_io/quick/TovuQuickSheet.h>
#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/viewmodel/TovuMultiRatingQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>
#include <tovukit_io/viewmodel/TovuRatingQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuSheetMetrics.h>

#include <QAccessibleActionInterface>
#include <QGuiApplication>
#include <QPalette>
#include <QQmlApplicationEngine>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace {

using Clicker = TovuQuickSurveyClicker;

std::vector<TovuChoice> options(int count)
{
    std::vector<TovuChoice> choices;
    for (int i = 0; i < count; ++i)
        choices.push_back({.id = "o" + std::to_string(i), .text = "Option " + std::to_string(i)});
    return choices;
}

TovuQuestion question(TovuQuestionType type, bool required = true, int optionCount = 3)
{
    return TovuQuestion{
        .id = "q", .type = type, .title = "Which one?", .isRequired = required, .options = options(optionCount)};
}

} // namespace

class QuickSheet : public testing::Test
{
protected:
    void SetUp() override
    {
        window = TovuQuickHost::load(engine);
        ASSERT_TRUE(window);
        hostField = window->findChild<QQuickItem *>(QStringLiteral("hostField"));
        ASSERT_TRUE(hostField && hostField->hasActiveFocus());
    }

    void TearDown() override
    {
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
        QGuiApplication::setPalette(QPalette());
    }

    /// Presents a survey of `q` and shows its page; returns the page.
    QQuickItem *show(const TovuQuestion &q, bool isLast = false, std::optional<TovuTheme> theme = std::nullopt)
    {
        TovuSurvey survey{.id = "s", .name = "Sheet", .theme = theme, .questions = {q}};
        if (!presenter.present(survey, window))
            return nullptr;
        presenter.showQuestion(
            TovuPageRequest{.question = q, .isLastQuestion = isLast, .onAnswer = [this](const TovuAnswer &a) {
                                answers.push_back(a);
                            }});
        QQuickItem *page = sheet() ? sheet()->currentPage() : nullptr;
        if (!page || !QTest::qWaitFor([page] { return page->height() > 0; }, 2000))
            return nullptr;
        return page;
    }

    TovuQuickSheet *sheet() const { return presenter.quickSheet(); }
    QQuickItem *panel() const { return sheet()->findChild<QQuickItem *>(QStringLiteral("panel")); }
    bool clickButton(const QString &name) { return Clicker::clickButton(window, sheet(), name); }
    QAccessibleInterface *button(const QString &name) { return Clicker::control(sheet(), name); }
    bool shows(const QString &text) { return Clicker::texts(sheet()).contains(text); }

    QQmlApplicationEngine engine;
    QQuickWindow *window = nullptr;
    QQuickItem *hostField = nullptr;
    static inline TovuRecordingUrlOpener opener;
    TovuQuickPresenter presenter{&opener};
    std::vector<TovuAnswer> answers;
};

TEST_F(QuickSheet, CoversTheHostAndKeepsEveryInputAwayFromIt)
{
    ASSERT_TRUE(show(question(TovuQuestionType::singleChoice), false, TovuTheme{.transparency = 0.2F}));
    EXPECT_NEAR(sheet()->dimmingAlpha(), 0.2, 1e-6);
    EXPECT_EQ(sheet()->size(), window->size());

    // Taps on the dimming layer, wheel turns and keys end at the sheet.
    QTest::mouseClick(window, Qt::LeftButton, {}, QPoint(200, 40));
    QTest::keyClick(window, Qt::Key_A);
    EXPECT_EQ(window->property("hostTaps").toInt(), 0);
    EXPECT_EQ(window->property("hostKeys").toInt(), 0);

    // Tab visits the sheet's controls and never the host; focus the host's code
    // hands its own item comes back.
    for (int i = 0; i < 8; ++i) {
        QTest::keyClick(window, Qt::Key_Tab);
        EXPECT_TRUE(sheet()->isAncestorOf(window->activeFocusItem())) << "tab " << i;
    }
    QTest::keyClick(window, Qt::Key_Space); // operates the focused control, not the host
    EXPECT_EQ(window->property("hostKeys").toInt(), 0);
    hostField->forceActiveFocus();
    EXPECT_TRUE(sheet()->isAncestorOf(window->activeFocusItem()) || window->activeFocusItem() == sheet());

    // Skip is told once, even when tapped again while the sheet closes, and focus returns.
    int skips = 0;
    presenter.onSkip = [&] {
        ++skips;
    };
    QPointer<TovuQuickSheet> closing = sheet();
    QAccessibleInterface *skip = button(QStringLiteral("Skip"));
    ASSERT_TRUE(skip);
    const QRect skipRect = skip->rect();
    TovuMotion::setDurationScale(1); // the sheet takes its time to close
    Clicker::click(window, skip);
    EXPECT_TRUE(sheet()->isDismissing());
    QTest::mouseClick(window, Qt::LeftButton, {}, window->mapFromGlobal(skipRect.center()));
    EXPECT_EQ(skips, 1);
    ASSERT_TRUE(QTest::qWaitFor([&] { return closing.isNull(); }, 3000));
    TovuMotion::setDurationScale(0);
    EXPECT_TRUE(hostField->hasActiveFocus());
    EXPECT_EQ(window->property("hostTaps").toInt(), 0);

    // Escape is Skip, and the host never hears it.
    ASSERT_TRUE(show(question(TovuQuestionType::singleChoice)));
    QTest::keyClick(window, Qt::Key_Escape);
    EXPECT_EQ(skips, 2);
    EXPECT_EQ(window->property("hostKeys").toInt(), 0);
}

TEST_F(QuickSheet, AnItemHostIsCoveredAndFollowedAsItResizes)
{
    auto *host = new QQuickItem(window->contentItem());
    host->setPosition(QPointF(0, 100));
    host->setSize(QSizeF(390, 600));
    TovuQuestion q = question(TovuQuestionType::singleChoice);
    ASSERT_TRUE(presenter.present(TovuSurvey{.id = "s", .name = "Item", .questions = {q}}, host));
    presenter.showQuestion(TovuPageRequest{.question = q});
    ASSERT_EQ(sheet()->parentItem(), host);
    EXPECT_EQ(sheet()->size(), host->size());
    host->setHeight(500);
    EXPECT_EQ(sheet()->height(), 500);
    EXPECT_NEAR(panel()->y() + panel()->height(), 500, 1) << "the panel sits on the item's bottom edge";
    QTest::mouseClick(window, Qt::LeftButton, {}, QPoint(200, 120));
    EXPECT_EQ(window->property("hostTaps").toInt(), 0);
}

TEST_F(QuickSheet, TallPagesScrollWithinTheLimitAndTheKeyboardLiftsThePanel)
{
    ASSERT_TRUE(show(question(TovuQuestionType::singleChoice, true, 30)));
    const qreal limit = window->height() * TovuSheetMetrics::maxHeightRatio;
    EXPECT_NEAR(panel()->height(), limit, 1);
    EXPECT_NEAR(panel()->y() + panel()->height(), window->height(), 1);

    sheet()->keyboardWillShow(QRectF(0, 0, 390, 300), 0);
    EXPECT_NEAR(panel()->y() + panel()->height(), window->height() - 300, 1);
    EXPECT_GE(panel()->y(), TovuSheetMetrics::keyboardTopMargin - 1) << "never above the host's top";
    sheet()->keyboardWillHide(0);
    EXPECT_NEAR(panel()->y() + panel()->height(), window->height(), 1);

    // Tab reaches the action under the fold, and the page scrolls to show it.
    for (int i = 0; i < 40 && !window->activeFocusItem()->property("text").toString().startsWith(u"Next"); ++i)
        QTest::keyClick(window, Qt::Key_Tab);
    QQuickItem *focused = window->activeFocusItem();
    ASSERT_TRUE(focused->property("text").toString().startsWith(u"Next"));
    const QRectF shown = focused->mapRectToScene(focused->boundingRect());
    const QRectF panelArea = panel()->mapRectToScene(panel()->boundingRect());
    EXPECT_TRUE(panelArea.contains(shown)) << "the focused action is in view";

    // A short page takes the height it needs.
    ASSERT_TRUE(show(question(TovuQuestionType::singleChoice, true, 2)));
    EXPECT_LT(panel()->height(), limit / 2);
}

TEST_F(QuickSheet, TapsReachTheModelAndThePageShowsItsState)
{
    // Single choice, required, last question: "Submit" refuses without a choice.
    ASSERT_TRUE(show(question(TovuQuestionType::singleChoice), true));
    EXPECT_FALSE(shows(QStringLiteral("Please select an option.")));
    ASSERT_TRUE(clickButton(QStringLiteral("Submit")));
    EXPECT_TRUE(shows(QStringLiteral("Please select an option.")));
    EXPECT_TRUE(answers.empty());
    ASSERT_TRUE(clickButton(QStringLiteral("Option 1")));
    EXPECT_TRUE(button(QStringLiteral("Option 1"))->state().checked);
    EXPECT_FALSE(button(QStringLiteral("Option 0"))->state().checked);
    EXPECT_FALSE(shows(QStringLiteral("Please select an option."))) << "the message hides on a tap";
    ASSERT_TRUE(clickButton(QStringLiteral("Submit")));
    ASSERT_EQ(answers.size(), 1u);
    EXPECT_EQ(answers[0].value.at(0).rowId, "o1");

    // Multiple choice: rows tick and untick by keyboard too.
    answers.clear();
    ASSERT_TRUE(show(question(TovuQuestionType::multipleChoice)));
    EXPECT_TRUE(shows(QStringLiteral("Select all that apply")));
    ASSERT_TRUE(clickButton(QStringLiteral("Option 2")));
    ASSERT_TRUE(clickButton(QStringLiteral("Option 0")));
    ASSERT_TRUE(clickButton(QStringLiteral("Option 2")));
    EXPECT_TRUE(button(QStringLiteral("Option 0"))->state().checked);
    EXPECT_FALSE(button(QStringLiteral("Option 2"))->state().checked);
    ASSERT_TRUE(clickButton(QStringLiteral("Next \u2192")));
    ASSERT_EQ(answers.size(), 1u);
    ASSERT_EQ(answers[0].value.size(), 1u);
    EXPECT_EQ(answers[0].value[0].rowId, "o0");

    // Dropdown: Next appears only after a choice, which the selector then shows.
    answers.clear();
    ASSERT_TRUE(show(question(TovuQuestionType::dropdown)));
    EXPECT_FALSE(button(QStringLiteral("Next \u2192")));
    EXPECT_FALSE(button(QStringLiteral("Option 1"))) << "the list starts closed";
    ASSERT_TRUE(clickButton(QStringLiteral("Select an option")));
    ASSERT_TRUE(clickButton(QStringLiteral("Option 1")));
    EXPECT_TRUE(button(QStringLiteral("Option 1"))) << "the selector shows the choice";
    EXPECT_TRUE(Clicker::nodes(sheet(), QAccessible::Button, QStringLiteral("Option 0")).empty()) << "the list closed";
    ASSERT_TRUE(clickButton(QStringLiteral("Next \u2192")));
    ASSERT_EQ(answers.size(), 1u);
    EXPECT_EQ(answers[0].value.at(0).rowId, "o1");

    // Text box: a blank required answer is refused and the field marked; typing reaches the model.
    answers.clear();
    ASSERT_TRUE(
        show(TovuQuestion{.id = "t", .type = TovuQuestionType::singleTextBox, .title = "Why?", .isRequired = true}));
    ASSERT_TRUE(Clicker::type(window, sheet(), QStringLiteral("Why?"), QStringLiteral("   ")));
    ASSERT_TRUE(clickButton(QStringLiteral("Submit")));
    EXPECT_TRUE(shows(QStringLiteral("Please enter an answer.")));
    EXPECT_TRUE(answers.empty());
    ASSERT_TRUE(Clicker::type(window, sheet(), QStringLiteral("Why?"), QStringLiteral("hi ")));
    EXPECT_FALSE(shows(QStringLiteral("Please enter an answer."))) << "focus hides the message";
    ASSERT_TRUE(clickButton(QStringLiteral("Submit")));
    ASSERT_EQ(answers.size(), 1u);
    EXPECT_EQ(answers[0].value.at(0).text, "   hi ");
    EXPECT_EQ(answers[0].value.at(0).type, "text");
}

TEST_F(QuickSheet, AnNPSScoreShowsItsFollowUpAndBothAnswersLeave)
{
    std::vector<TovuAnswer> followUps;
    TovuQuestion nps{
        .id = "nps", .type = TovuQuestionType::nps, .title = "Recommend us?", .followUpQuestion = "Why that score?"};
    TovuSurvey survey{.id = "s", .name = "NPS", .questions = {nps}};
    ASSERT_TRUE(presenter.present(survey, window));
    presenter.showQuestion(TovuPageRequest{.question = nps,
                                           .onAnswer = [this](const TovuAnswer &a) { answers.push_back(a); },
                                           .onAdditionalAnswer =
                                               [&](const TovuAnswer &a) {
                                                   followUps.push_back(a);
                                               }});
    EXPECT_FALSE(button(QStringLiteral("Next \u2192"))) << "the action waits for a score";
    EXPECT_FALSE(shows(QStringLiteral("Why that score?")));
    ASSERT_TRUE(clickButton(QStringLiteral("Score 9")));
    EXPECT_TRUE(shows(QStringLiteral("Why that score?")));
    ASSERT_TRUE(Clicker::type(window, sheet(), QStringLiteral("Why that score?"), QStringLiteral("Fast")));
    ASSERT_TRUE(clickButton(QStringLiteral("Submit"))) << "a follow-up makes the action read Submit";
    ASSERT_EQ(followUps.size(), 1u);
    EXPECT_EQ(followUps[0].value.at(0).text, "Fast");
    ASSERT_EQ(answers.size(), 1u);
    EXPECT_EQ(answers[0].value.at(0).colId, "9");
}

TEST_F(QuickSheet, EveryMultiNPSRowTakesItsOwnScore)
{
    QQuickItem *page = show(question(TovuQuestionType::multiNps));
    ASSERT_TRUE(page);
    ASSERT_TRUE(clickButton(QStringLiteral("Next \u2192")));
    EXPECT_TRUE(shows(QStringLiteral("Please rate all items.")));
    EXPECT_EQ(page->x(), 0) << "only the message shakes";
    // A screen reader tells the rows' scales apart by their description.
    const auto eights = Clicker::nodes(sheet(), QAccessible::Button, QStringLiteral("Score 8"));
    ASSERT_EQ(eights.size(), 3u);
    EXPECT_EQ(eights[1]->text(QAccessible::Description), QStringLiteral("Option 1"));
    ASSERT_TRUE(Clicker::click(window, eights[0]));
    ASSERT_TRUE(Clicker::click(window, eights[1]));
    // A screen reader's press chooses as a tap does.
    ASSERT_TRUE(eights[2]->actionInterface());
    eights[2]->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    ASSERT_TRUE(clickButton(QStringLiteral("Next \u2192")));
    ASSERT_EQ(answers.size(), 1u);
    ASSERT_EQ(answers[0].value.size(), 3u);
    EXPECT_EQ(answers[0].value[2].rowId, "o2");
}

TEST_F(QuickSheet, ARatingFillsAsItsVariantSaysAndReportsItsColumn)
{
    TovuQuestion rating{
        .id = "r", .type = TovuQuestionType::rating, .title = "Rate us", .followUpQuestion = "Anything to add?"};
    TovuSurvey survey{.id = "s", .name = "Rating", .questions = {rating}};
    ASSERT_TRUE(presenter.present(survey, window));
    presenter.showQuestion(TovuPageRequest{
        .question = rating, .variant = TovuRatingVariant::star, .onAnswer = [this](const TovuAnswer &a) {
            answers.push_back(a);
        }});
    const TovuRatingQuestionViewModel names(rating, TovuRatingVariant::star, 5, false);
    ASSERT_TRUE(clickButton(names.accessibleName(3)));
    // The screen reader hears the chosen one checked; the stars up to it fill.
    EXPECT_TRUE(button(names.accessibleName(3))->state().checked);
    EXPECT_FALSE(button(names.accessibleName(2))->state().checked);
    auto *model
        = qobject_cast<TovuRatingQuestionViewModel *>(sheet()->currentPage()->property("model").value<QObject *>());
    ASSERT_TRUE(model);
    EXPECT_TRUE(model->isSelected(2));
    EXPECT_TRUE(shows(QStringLiteral("Anything to add?")));
    ASSERT_TRUE(clickButton(QStringLiteral("Submit")));
    ASSERT_EQ(answers.size(), 1u);
    EXPECT_EQ(answers[0].value.at(0).colId, "3");
}

TEST_F(QuickSheet, AGridRatesEachRowAndItsLongRowsScrollSideways)
{
    TovuQuestion grid = question(TovuQuestionType::multiRating);
    grid.columns = options(8); // from six columns on, a row scrolls
    grid.showColLabels = true;
    QQuickItem *page = show(grid);
    ASSERT_TRUE(page);
    const TovuMultiRatingQuestionViewModel names(grid, TovuRatingVariant::star, false);
    const auto cell = [&](int row, int position) {
        return button(names.accessibleName(row, position));
    };
    ASSERT_TRUE(clickButton(QStringLiteral("Next \u2192")));
    EXPECT_TRUE(shows(QStringLiteral("Please rate all items.")));
    EXPECT_EQ(page->x(), 0) << "only the message shakes";

    ASSERT_TRUE(Clicker::click(window, cell(0, 3)));
    EXPECT_TRUE(cell(0, 3)->state().checked) << "a screen reader hears the choice";
    EXPECT_FALSE(cell(0, 2)->state().checked);
    EXPECT_FALSE(shows(QStringLiteral("Please rate all items.")));

    // The last column is off the panel's edge until the row is dragged; a drag chooses nothing.
    const QRect panelRect = Clicker::node(sheet(), QAccessible::Button, QStringLiteral("Skip"))->rect();
    EXPECT_GT(cell(0, 8)->rect().right(), panelRect.right());
    const QPoint from = window->mapFromGlobal(cell(0, 6)->rect().center());
    QTest::mousePress(window, Qt::LeftButton, {}, from);
    for (int step = 1; step <= 10; ++step)
        QTest::mouseMove(window, from - QPoint(step * 20, 0), 16);
    QTest::mouseRelease(window, Qt::LeftButton, {}, from - QPoint(200, 0), 16);
    ASSERT_TRUE(QTest::qWaitFor([&] { return cell(0, 8)->rect().right() <= panelRect.right(); }, 3000));
    EXPECT_TRUE(cell(0, 3)->state().checked) << "the drag tapped nothing";
    ASSERT_TRUE(Clicker::click(window, cell(0, 8)));
    ASSERT_TRUE(Clicker::click(window, cell(1, 2)));
    // A screen reader's toggle rates as a tap does.
    ASSERT_TRUE(cell(2, 2)->actionInterface());
    cell(2, 2)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(cell(2, 2)->state().checked);
    ASSERT_TRUE(clickButton(QStringLiteral("Next \u2192")));
    ASSERT_EQ(answers.size(), 1u);
    ASSERT_EQ(answers[0].value.size(), 3u);
    EXPECT_EQ(answers[0].value[0].colId, "o7");
    EXPECT_EQ(answers[0].value[2].rowId, "o2");
    EXPECT_EQ(answers[0].value[2].colId, "o1");

    // Right to left, the first column sits at the right end and is shown first.
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    ASSERT_TRUE(show(grid));
    const QRect first = cell(0, 1)->rect();
    EXPECT_GT(first.left(), cell(0, 2)->rect().left());
    EXPECT_LE(first.right(), panelRect.right());
}

TEST_F(QuickSheet, SurveyTextIsShownAsPlainText)
{
    TovuQuestion q = question(TovuQuestionType::singleChoice);
    q.title = "<b>Bold</b> & <i>brave</i>";
    q.options->at(0).text = "<img src=x>";
    QQuickItem *page = show(q);
    ASSERT_TRUE(page);
    EXPECT_TRUE(shows(QStringLiteral("<b>Bold</b> & <i>brave</i>")));
    for (QQuickItem *item : page->findChildren<QQuickItem *>()) {
        if (item->metaObject()->indexOfProperty("textFormat") >= 0 && item->property("text").isValid()) {
            EXPECT_EQ(item->property("textFormat").toInt(), 0) << "Text.PlainText";
        }
    }
}

TEST_F(QuickSheet, ALightToDarkSwitchRepaintsTheSheetAndMirroringFollowsTheLanguage)
{
    ASSERT_TRUE(show(question(TovuQuestionType::singleChoice)));
    const QColor light = panel()->property("color").value<QColor>();
    EXPECT_EQ(light, TovuPlatformColors::color(TovuPlatformColors::Role::systemBackground, false));
    QPalette dark;
    dark.setColor(QPalette::Window, Qt::black);
    dark.setColor(QPalette::WindowText, Qt::white);
    QGuiApplication::setPalette(dark);
    EXPECT_EQ(panel()->property("color").value<QColor>(),
              TovuPlatformColors::color(TovuPlatformColors::Role::systemBackground, true));

    const QRect leftToRight = button(QStringLiteral("Skip"))->rect();
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    ASSERT_TRUE(show(question(TovuQuestionType::singleChoice)));
    const QRect rightToLeft = button(QStringLiteral("Skip"))->rect();
    const QPoint origin = window->mapToGlobal(QPoint());
    EXPECT_NEAR(rightToLeft.left() - origin.x(), window->width() - (leftToRight.right() + 1 - origin.x()), 1)
        << "Skip moves to the other side";
}

TEST_F(QuickSheet, TheThankYouPageOpensItsRedirectThroughTheUrlOpener)
{
    const std::size_t before = opener.openedUrls().size();
    TovuQuestion done{.id = "thank_you_auto",
                      .type = TovuQuestionType::thankYou,
                      .title = "Done",
                      .redirectURL = "https://example.com/next"};
    ASSERT_TRUE(show(done));
    EXPECT_TRUE(shows(QStringLiteral("Done")));
    EXPECT_TRUE(shows(QStringLiteral("Your feedback helps us improve.")));
    EXPECT_TRUE(Clicker::node(sheet(), QAccessible::Graphic, QStringLiteral("Done")));
    ASSERT_TRUE(QTest::qWaitFor([&] { return opener.openedUrls().size() > before; }, 4000));
    EXPECT_EQ(opener.openedUrls().back(), QUrl(QStringLiteral("https://example.com/next")));
}
