// The same page, laid out by both front ends at a phone's width, puts its title,
// options, fields and action button in the same places (within 2 px: the two text
// engines round differently). Both are measured the way a screen reader sees
// them: by accessible role and name.

#include "TovuQuickSurveyClicker.h"

#include <tovukit_io/quick/TovuQuickPresenter.h>
#include <tovukit_io/ui/TovuIntroView.h>
#include <tovukit_io/ui/TovuSheetPresenter.h>
#include <tovukit_io/viewmodel/TovuDropdownQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/viewmodel/TovuMultiNPSQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuMultiRatingQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuNPSQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuRatingQuestionViewModel.h>

#include <QAccessible>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QWidget>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace {

constexpr int phoneWidth = 390;

struct Control {
    QAccessible::Role role;
    QString name;
};

std::vector<TovuChoice> options(std::initializer_list<const char *> texts)
{
    std::vector<TovuChoice> choices;
    int index = 0;
    for (const char *text : texts)
        choices.push_back({.id = "o" + std::to_string(index++), .text = text});
    return choices;
}

// Where `control` sits relative to `page`'s top left corner, or an empty rect.
QRect placeOf(QObject *root, QPoint pageOrigin, const Control &control)
{
    QAccessibleInterface *node = TovuQuickSurveyClicker::node(root, control.role, control.name);
    return node ? node->rect().translated(-pageOrigin) : QRect();
}

class FrontEndParity : public testing::Test
{
protected:
    // Pages are compared at rest: the thank-you page zooms in, which moves what it shows.
    void SetUp() override { TovuMotion::setDurationScale(0); }
    void TearDown() override { TovuMotion::setDurationScale(1); }

    /// The page for `request` in both front ends, after `act` did the same to each page's model.
    void compare(const TovuPageRequest &request, const std::vector<Control> &controls,
                 const std::function<void(QObject *model)> &act = {})
    {
        SCOPED_TRACE(request.question.title);
        compare(
            [&] {
                QWidget *page = TovuSheetPresenter::createPage(request);
                if (act)
                    act(page->findChild<TovuQuestionViewModel *>());
                return page;
            },
            [&](QQmlEngine *engine) {
                QQuickItem *page = TovuQuickPresenter::createPage(engine, request);
                if (act && page)
                    act(page->property("model").value<QObject *>());
                return page;
            },
            controls);
    }

    void compare(const std::function<QWidget *()> &makeWidget,
                 const std::function<QQuickItem *(QQmlEngine *)> &makeItem, const std::vector<Control> &controls)
    {
        std::unique_ptr<QWidget> widgetPage(makeWidget());
        widgetPage->resize(phoneWidth, widgetPage->heightForWidth(phoneWidth));
        widgetPage->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(widgetPage.get()));

        QQuickWindow window;
        window.resize(phoneWidth, 844);
        std::unique_ptr<QQuickItem> quickPage(makeItem(TovuQuickPresenter::engineFor(&window)));
        ASSERT_TRUE(quickPage);
        quickPage->setParentItem(window.contentItem());
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        ASSERT_TRUE(QTest::qWaitFor([&] { return quickPage->height() > 0; }, 2000));

        const QPoint widgetOrigin = widgetPage->mapToGlobal(QPoint());
        const QPoint quickOrigin = quickPage->mapToGlobal(QPointF()).toPoint();
        for (const Control &control : controls) {
            SCOPED_TRACE(control.name.toStdString());
            const QRect inWidgets = placeOf(widgetPage.get(), widgetOrigin, control);
            const QRect inQuick = placeOf(quickPage.get(), quickOrigin, control);
            ASSERT_FALSE(inWidgets.isEmpty()) << "not in the widget page";
            ASSERT_FALSE(inQuick.isEmpty()) << "not in the Qt Quick page";
            EXPECT_LE(std::abs(inWidgets.left() - inQuick.left()), 2);
            EXPECT_LE(std::abs(inWidgets.top() - inQuick.top()), 2);
            EXPECT_LE(std::abs(inWidgets.width() - inQuick.width()), 2);
            EXPECT_LE(std::abs(inWidgets.height() - inQuick.height()), 2);
        }
    }

    static Control button(const char *name) { return {QAccessible::Button, QString::fromUtf8(name)}; }
    static Control option(const char *name) { return {QAccessible::CheckBox, QString::fromUtf8(name)}; }
    static Control radio(const char *name) { return {QAccessible::RadioButton, QString::fromUtf8(name)}; }
    static Control text(const char *name) { return {QAccessible::StaticText, QString::fromUtf8(name)}; }
    static Control field(const char *name) { return {QAccessible::EditableText, QString::fromUtf8(name)}; }
};

} // namespace

TEST_F(FrontEndParity, QuestionPagesPlaceTheirControlsAlike)
{
    const char *title = "How did you hear about Fresh Basket, and what made you try it?";
    const struct {
        TovuQuestionType type;
        bool last;
        std::vector<Control> controls;
    } pages[] = {
        {TovuQuestionType::singleChoice,
         false,
         {text(title), radio("A friend"), radio("An advert"), radio("Search"), button("Next \u2192")}},
        {TovuQuestionType::multipleChoice,
         true,
         {text(title), text("Select all that apply"), option("A friend"), option("Search"), button("Submit")}},
        {TovuQuestionType::dropdown, false, {text(title), button("Select an option")}},
        {TovuQuestionType::singleTextBox, false, {text(title), field(title), button("Submit")}},
        {TovuQuestionType::multipleTextBox,
         false,
         {text(title), text("A friend"), field("A friend"), field("Search"), button("Submit")}},
    };
    for (const auto &page : pages) {
        TovuQuestion question{
            .id = "q", .type = page.type, .title = title, .options = options({"A friend", "An advert", "Search"})};
        compare(TovuPageRequest{.question = question, .isLastQuestion = page.last}, page.controls);
    }
}

TEST_F(FrontEndParity, NPSPagesPlaceTheirScalesAndFollowUpsAlike)
{
    TovuQuestion nps{.id = "nps",
                     .type = TovuQuestionType::nps,
                     .title = "How likely are you to recommend us?",
                     .subtitle = "0 is not at all, 10 is extremely",
                     .followUpQuestion = "What made you choose that?"};
    nps.conditionalFollowUps
        = std::vector<TovuConditionalFollowUp>{{.minRating = 0,
                                                .maxRating = 6,
                                                .followUpQuestion = "What went wrong?",
                                                .followUpType = TovuQuestionType::singleChoice,
                                                .followUpOptions = options({"Delivery", "Price"})}};
    const auto score = [](int chosen) {
        return [chosen](QObject *model) {
            qobject_cast<TovuNPSQuestionViewModel *>(model)->selectScore(chosen);
        };
    };
    const std::vector<Control> scale{text("How likely are you to recommend us?"),
                                     text("0 is not at all, 10 is extremely"),
                                     button("Score 0"),
                                     button("Score 6"),
                                     button("Score 10"),
                                     text("Not likely"),
                                     text("Very likely")};
    // A text follow-up under a promoter's score, radio rows under a detractor's.
    std::vector<Control> promoter = scale;
    promoter.insert(promoter.end(),
                    {text("What made you choose that?"), field("What made you choose that?"), button("Submit")});
    compare(TovuPageRequest{.question = nps}, promoter, score(9));
    std::vector<Control> detractor = scale;
    detractor.insert(detractor.end(), {text("What went wrong?"), radio("Delivery"), radio("Price"), button("Submit")});
    compare(TovuPageRequest{.question = nps}, detractor, score(3));
}

TEST_F(FrontEndParity, MultiNPSPagesPlaceTheirRowsAlike)
{
    const TovuQuestion rows{.id = "rows",
                            .type = TovuQuestionType::multiNps,
                            .title = "How likely are you to recommend",
                            .isRequired = true,
                            .options = options({"Our app", "Our delivery", "Our prices"})};
    compare(TovuPageRequest{.question = rows},
            {text("How likely are you to recommend"), text("Our app"), button("Score 0"), button("Score 10"),
             text("Not likely"), text("Our delivery"), text("Our prices"), text("Please rate all items."),
             button("Next \u2192")},
            [](QObject *model) {
                auto *scales = qobject_cast<TovuMultiNPSQuestionViewModel *>(model);
                scales->selectScore(QStringLiteral("o1"), 4);
                scales->submit(); // refused: one row is left
            });
}

TEST_F(FrontEndParity, RatingPagesPlaceTheirButtonsAlikeInEveryVariant)
{
    const TovuRatingVariant variants[]
        = {TovuRatingVariant::star, TovuRatingVariant::heart, TovuRatingVariant::circle,
           TovuRatingVariant::tile, TovuRatingVariant::emoji, TovuRatingVariant::numeric};
    TovuQuestion rating{.id = "r",
                        .type = TovuQuestionType::rating,
                        .title = "How was your last delivery?",
                        .followUpQuestion = "Tell us more"};
    for (const TovuRatingVariant variant : variants) {
        SCOPED_TRACE(std::string(rawValue(variant)));
        const TovuRatingQuestionViewModel names(rating, variant, 5, false);
        const auto control = [&names](int position) {
            return Control{QAccessible::CheckBox, names.accessibleName(position)};
        };
        compare(TovuPageRequest{.question = rating, .variant = variant},
                {text("How was your last delivery?"), control(1), control(3), control(5), text("Tell us more"),
                 field("Tell us more"), button("Submit")},
                [](QObject *model) { qobject_cast<TovuRatingQuestionViewModel *>(model)->rate(3); });
    }

    // Column labels under the buttons, in the buttons' accessible names.
    rating.columns = std::vector<TovuChoice>{{.id = "c1", .text = "Poor"},
                                             {.id = "c2", .text = "Fair"},
                                             {.id = "c3", .text = "Good"},
                                             {.id = "c4", .text = "Great"}};
    rating.showColLabels = true;
    const TovuRatingQuestionViewModel labelled(rating, TovuRatingVariant::star, 5, false);
    compare(TovuPageRequest{.question = rating},
            {{QAccessible::CheckBox, labelled.accessibleName(1)}, {QAccessible::CheckBox, labelled.accessibleName(4)}});
}

TEST_F(FrontEndParity, MultiRatingGridsPlaceTheirCellsAlike)
{
    // Three columns share the row's width; seven keep their natural widths (wider where a label
    // needs it) and scroll.
    TovuQuestion grid{.id = "grid",
                      .type = TovuQuestionType::multiRating,
                      .title = "Rate each part of your order",
                      .subtitle = "One rating per row",
                      .isRequired = true,
                      .options = options({"Freshness", "Packing", "Delivery time"}),
                      .columns = options({"Poor", "Fair", "Good"})};
    const auto tapFirstRow = [](QObject *model) {
        qobject_cast<TovuMultiRatingQuestionViewModel *>(model)->tap(QStringLiteral("o0::o2"));
    };
    const auto compareGrid = [&](TovuRatingVariant variant, std::initializer_list<int> positions) {
        SCOPED_TRACE(std::string(rawValue(variant)) + ", " + std::to_string(grid.columns->size()) + " columns");
        const TovuMultiRatingQuestionViewModel names(grid, variant, false);
        std::vector<Control> controls{text("Rate each part of your order"), text("One rating per row"),
                                      text("Freshness"), text("Delivery time"), button("Next \u2192")};
        for (const int row : {0, 2})
            for (const int position : positions)
                controls.push_back({QAccessible::CheckBox, names.accessibleName(row, position)});
        compare(TovuPageRequest{.question = grid, .variant = variant}, controls, tapFirstRow);
    };
    for (const TovuRatingVariant variant :
         {TovuRatingVariant::star, TovuRatingVariant::emoji, TovuRatingVariant::numeric})
        compareGrid(variant, {1, 2, 3});
    grid.columns = options({"Very poor", "Poor", "Fair", "Good", "Very good", "Excellent", "Outstanding"});
    grid.showColLabels = true;
    for (const TovuRatingVariant variant : {TovuRatingVariant::heart, TovuRatingVariant::emoji})
        compareGrid(variant, {1, 2, 4});
}

TEST_F(FrontEndParity, IntroAndThankYouPagesPlaceTheirTextsAlike)
{
    const TovuQuestion thankYou{.id = "thank_you_auto",
                                .type = TovuQuestionType::thankYou,
                                .title = "Thanks a lot!",
                                .subtitle = "We read every answer."};
    compare(TovuPageRequest{.question = thankYou}, {text("Thanks a lot!"), text("We read every answer.")});

    const TovuSurveyPage intro{
        .enabled = true, .content = "Three short questions about your last order.", .buttonText = "Start"};
    compare([&] { return new TovuIntroView(intro); },
            [&](QQmlEngine *engine) { return TovuQuickPresenter::createIntroPage(engine, intro, {}); },
            {text("Three short questions about your last order."), button("Start")});
}
