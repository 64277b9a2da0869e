// The choice, dropdown and text pages as a respondent uses them: real clicks and
// key presses reach the view model, and the kit widgets show its state.

#include <tovukit_io/ui/TovuDropdownQuestionView.h>
#include <tovukit_io/ui/TovuMultipleChoiceQuestionView.h>
#include <tovukit_io/ui/TovuSingleChoiceQuestionView.h>
#include <tovukit_io/ui/TovuTextBoxQuestionView.h>
#include <tovukit_io/ui/kit/TovuBox.h>
#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuChevron.h>
#include <tovukit_io/ui/kit/TovuTextField.h>
#include <tovukit_io/viewmodel/TovuDropdownQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>
#include <tovukit_io/viewmodel/TovuThemeEngine.h>

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QVBoxLayout>

#include "TovuPageTesting.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace {

using Role = TovuPlatformColors::Role;

QColor platform(Role role)
{
    return TovuPlatformColors::color(role);
}

QColor tint(QColor color, qreal alpha)
{
    color.setAlphaF(static_cast<float>(alpha));
    return color;
}

TovuQuestion question(TovuQuestionType type, bool required, std::vector<TovuChoice> options)
{
    return TovuQuestion{
        .id = "q7", .type = type, .title = "<b>Which</b> one?", .isRequired = required, .options = options};
}

const std::vector<TovuChoice> abc{{.id = "id-a", .text = "Alpha", .value = "a"},
                                  {.id = "id-b", .text = "Beta", .value = "b"},
                                  {.id = "id-c", .text = "Gamma", .value = "c"}};

using TovuPageTesting::click;
using TovuPageTesting::Shown;

class QuestionViews : public testing::Test
{
protected:
    void SetUp() override { TovuMotion::setDurationScale(0); }
    void TearDown() override
    {
        TovuMotion::setDurationScale(1);
        QApplication::setPalette(QPalette());
    }
    const QColor blue = platform(Role::blue);
};

// The look of an answer row, chosen or not.
void expectRow(const TovuButton *row, bool chosen, const QColor &accent)
{
    SCOPED_TRACE(row->text().toStdString());
    EXPECT_EQ(row->isChecked(), chosen);
    EXPECT_EQ(row->backgroundColor(), chosen ? tint(accent, 0.08) : platform(Role::systemBackground));
    EXPECT_EQ(row->borderColor(), chosen ? accent : platform(Role::gray4));
    EXPECT_EQ(row->titleColor(), chosen ? accent : platform(Role::label));
    EXPECT_EQ(row->borderWidth(), 1.5);
    EXPECT_EQ(row->cornerRadius(), 12);
    EXPECT_EQ(row->height(), 52);
}

} // namespace

TEST_F(QuestionViews, SingleChoiceTapsSelectAndNextReports)
{
    Shown page(new TovuSingleChoiceQuestionView(question(TovuQuestionType::singleChoice, true, abc), false));
    TovuSingleChoiceQuestionView &view = *page.view;
    EXPECT_EQ(view.titleLabel()->text(), QStringLiteral("<b>Which</b> one?"));
    EXPECT_EQ(view.titleLabel()->textFormat(), Qt::PlainText);
    ASSERT_EQ(view.optionRows().size(), 3);
    EXPECT_EQ(view.nextButton()->text(), QStringLiteral("Next \u2192"));
    EXPECT_EQ(view.nextButton()->backgroundColor(), blue);
    EXPECT_EQ(view.nextButton()->height(), 50);

    click(view.nextButton()); // required, nothing chosen
    EXPECT_TRUE(view.validationLabel()->isVisible());
    EXPECT_EQ(view.validationLabel()->text(), QStringLiteral("Please select an option."));
    EXPECT_TRUE(page.answers.empty());

    click(view.optionRows()[0]);
    click(view.optionRows()[2]);
    EXPECT_FALSE(view.validationLabel()->isVisible());
    EXPECT_EQ(view.viewModel()->selectedIndex(), 2);
    for (const TovuButton *row : view.optionRows())
        expectRow(row, row->tag() == 2, blue);
    EXPECT_EQ(view.optionRows()[2]->accessibleName(), QStringLiteral("Gamma"));
    EXPECT_EQ(view.optionRows()[2]->scale(), 1.0) << "the press bounce is over";

    click(view.nextButton());
    EXPECT_EQ(page.answers, (std::vector<TovuAnswer>{{.questionId = "q7", .value = {{.rowId = "id-c"}}}}));
    EXPECT_EQ(view.selectedOption()->id, "id-c");

    TovuSingleChoiceQuestionView last(question(TovuQuestionType::singleChoice, false, {}), true);
    EXPECT_EQ(last.nextButton()->text(), QStringLiteral("Submit"));
}

TEST_F(QuestionViews, MultipleChoiceRowsToggleByTheirOptionId)
{
    TovuQuestion q = question(TovuQuestionType::multipleChoice, true, abc);
    Shown page(new TovuMultipleChoiceQuestionView(q, true));
    TovuMultipleChoiceQuestionView &view = *page.view;
    EXPECT_EQ(view.hintLabel()->text(), QStringLiteral("Select all that apply"));
    EXPECT_EQ(view.nextButton()->text(), QStringLiteral("Submit"));
    ASSERT_EQ(view.optionButtons().size(), 3);
    EXPECT_EQ(view.optionButtons()[1]->objectName(), QStringLiteral("id-b"));
    EXPECT_EQ(view.optionButtons()[1]->accessory(), TovuButton::Accessory::checkbox);

    click(view.nextButton());
    EXPECT_TRUE(view.validationLabel()->isVisible());
    EXPECT_EQ(view.validationLabel()->text(), QStringLiteral("Please select at least one option."));

    click(view.optionButtons()[2]);
    click(view.optionButtons()[0]);
    click(view.optionButtons()[2]);
    EXPECT_FALSE(view.validationLabel()->isVisible());
    for (const TovuButton *row : view.optionButtons())
        expectRow(row, row->objectName() == QStringLiteral("id-a"), blue);
    EXPECT_EQ(view.selectedIds(), (std::set<std::string>{"id-a"}));

    click(view.nextButton());
    EXPECT_EQ(page.answers, (std::vector<TovuAnswer>{{.questionId = "q7", .value = {{.rowId = "id-a"}}}}));
}

TEST_F(QuestionViews, DropdownOpensInPlaceAndRevealsNextOnceChosen)
{
    TovuQuestion q = question(TovuQuestionType::dropdown, true, abc);
    Shown page(new TovuDropdownQuestionView(q));
    TovuDropdownQuestionView &view = *page.view;
    TovuButton *selector = view.dropdownButton();
    EXPECT_EQ(selector->text(), QStringLiteral("Select an option"));
    EXPECT_EQ(selector->titleColor(), platform(Role::secondaryLabel));
    EXPECT_EQ(selector->borderColor(), platform(Role::gray4));
    EXPECT_EQ(selector->height(), 52);
    EXPECT_EQ(view.chevron()->tag(), 99);
    EXPECT_FALSE(view.optionsContainer()->isVisible());
    EXPECT_FALSE(view.nextButton()->isVisible());
    EXPECT_EQ(view.optionMap().size(), 3u);

    click(selector);
    EXPECT_TRUE(view.isExpanded());
    EXPECT_TRUE(view.optionsContainer()->isVisible());
    EXPECT_EQ(selector->borderColor(), blue);
    EXPECT_EQ(view.chevron()->rotation(), 180.0);

    click(view.optionButtons()[1]);
    EXPECT_FALSE(view.isExpanded());
    EXPECT_FALSE(view.optionsContainer()->isVisible());
    EXPECT_EQ(view.chevron()->rotation(), 0.0);
    EXPECT_TRUE(view.nextButton()->isVisible());
    EXPECT_EQ(selector->text(), QStringLiteral("Beta"));
    EXPECT_EQ(selector->titleColor(), platform(Role::label));
    EXPECT_EQ(selector->borderColor(), blue) << "stays highlighted after a choice";
    EXPECT_EQ(view.optionButtons()[1]->backgroundColor(), tint(blue, 0.08));
    EXPECT_EQ(view.optionButtons()[1]->titleColor(), blue);
    EXPECT_EQ(view.optionButtons()[0]->backgroundColor().alpha(), 0);
    EXPECT_EQ(view.optionButtons()[0]->titleColor(), platform(Role::label));

    click(selector); // open again to change the choice: the list pushes the button down
    QApplication::processEvents();
    EXPECT_GE(view.nextButton()->geometry().top(), view.optionsContainer()->geometry().bottom());
    click(view.optionButtons()[2]);
    click(view.nextButton());
    EXPECT_EQ(page.answers, (std::vector<TovuAnswer>{{.questionId = "q7", .value = {{.rowId = "id-c"}}}}));
}

TEST_F(QuestionViews, TextBoxFieldsReportWhatWasTypedAndMarkTheFirstWhenEmpty)
{
    TovuQuestion q = question(TovuQuestionType::multipleTextBox, true, {});
    q.options.reset(); // Name, Email and Comment
    Shown page(new TovuTextBoxQuestionView(q));
    TovuTextBoxQuestionView &view = *page.view;
    ASSERT_EQ(view.textFields().size(), 3);
    EXPECT_EQ(view.fieldLabels()[1]->text(), QStringLiteral("Email"));
    EXPECT_EQ(view.fieldLabels()[1]->textFormat(), Qt::PlainText);
    EXPECT_EQ(view.textFields()[1]->placeholderText(), QStringLiteral("Email\u2026"));
    EXPECT_TRUE(view.textFields()[1]->inputMethodHints() & Qt::ImhEmailCharactersOnly);
    EXPECT_FALSE(view.textFields()[0]->inputMethodHints() & Qt::ImhEmailCharactersOnly);
    EXPECT_EQ(view.textFields()[0]->height(), 48);
    EXPECT_EQ(view.submitButton()->text(), QStringLiteral("Submit"));

    click(view.submitButton());
    EXPECT_TRUE(view.validationLabel()->isVisible());
    EXPECT_TRUE(view.textFields()[0]->hasError());
    EXPECT_EQ(view.textFields()[0]->currentBorderColor(), platform(Role::red));
    EXPECT_FALSE(view.textFields()[1]->hasError());
    EXPECT_TRUE(page.answers.empty());

    click(view.textFields()[2]);
    EXPECT_FALSE(view.validationLabel()->isVisible()) << "focusing any field hides the message";
    EXPECT_TRUE(view.textFields()[0]->hasError()) << "only focusing the marked field clears it";
    QTest::keyClicks(view.textFields()[2], QStringLiteral("  fine, thanks "));
    EXPECT_EQ(view.textFields()[2]->currentBorderColor(), blue);
    EXPECT_EQ(view.textFields()[2]->currentBorderWidth(), 2.0);

    click(view.textFields()[0]);
    EXPECT_FALSE(view.textFields()[0]->hasError());
    EXPECT_EQ(view.textFields()[2]->currentBorderColor(), platform(Role::gray4)) << "blurred again";
    EXPECT_EQ(view.textFields()[2]->currentBorderWidth(), 1.5);

    click(view.submitButton());
    ASSERT_EQ(page.answers.size(), 1u);
    ASSERT_EQ(page.answers[0].value.size(), 3u);
    EXPECT_EQ(page.answers[0].value[0].text, "");
    EXPECT_EQ(page.answers[0].value[2].text, "  fine, thanks ");
    EXPECT_FALSE(page.answers[0].value[2].type);

    TovuTextBoxQuestionView single(question(TovuQuestionType::singleTextBox, false, {}));
    ASSERT_EQ(single.textFields().size(), 1);
    EXPECT_TRUE(single.fieldLabels().isEmpty());
    EXPECT_EQ(single.textFields()[0]->placeholderText(), QStringLiteral("Type your answer here\u2026"));
}

TEST_F(QuestionViews, ColoursFollowThePaletteAndTheHostWindowsAccent)
{
    QPalette light;
    light.setColor(QPalette::Window, Qt::white);
    QApplication::setPalette(light);
    QApplication::processEvents();
    Shown page(new TovuSingleChoiceQuestionView(question(TovuQuestionType::singleChoice, false, abc), false));
    TovuSingleChoiceQuestionView &view = *page.view;
    click(view.optionRows()[0]);
    EXPECT_EQ(view.titleLabel()->palette().color(QPalette::WindowText), QColor(Qt::black));

    QPalette dark;
    dark.setColor(QPalette::Window, QColor(0x1C, 0x1C, 0x1E));
    QApplication::setPalette(dark); // the appearance changes while the page is up
    QApplication::processEvents(); // widgets hear of it through posted events
    const QColor darkBlue = platform(Role::blue);
    EXPECT_NE(darkBlue, blue);
    EXPECT_EQ(view.titleLabel()->palette().color(QPalette::WindowText), QColor(Qt::white));
    EXPECT_EQ(view.nextButton()->backgroundColor(), darkBlue);
    expectRow(view.optionRows()[0], true, darkBlue);
    expectRow(view.optionRows()[1], false, darkBlue);

    // A host that sets its own accent lends it to the page, whichever window is active.
    QPalette purple = page.host.palette();
    purple.setColor(QPalette::Highlight, QColor(0x7C, 0x3A, 0xED));
    page.host.setPalette(purple);
    QApplication::processEvents();
    EXPECT_EQ(view.nextButton()->backgroundColor(), QColor(0x7C, 0x3A, 0xED));
    expectRow(view.optionRows()[0], true, QColor(0x7C, 0x3A, 0xED));

    // A theme colour wins over both, for pages built after it is set.
    TovuThemeEngine::shared().configureAppTheme(QColor(Qt::darkGreen));
    TovuSingleChoiceQuestionView themed(question(TovuQuestionType::singleChoice, false, abc), false, &page.host);
    EXPECT_EQ(themed.nextButton()->backgroundColor(), QColor(Qt::darkGreen));
    TovuThemeEngine::shared().configureAppTheme(TovuAppTheme{});
}

TEST_F(QuestionViews, RightToLeftMirrorsTheRows)
{
    Shown page(new TovuSingleChoiceQuestionView(question(TovuQuestionType::singleChoice, false, abc), false));
    page.host.setLayoutDirection(Qt::RightToLeft);
    click(page.view->optionRows()[0]);
    QApplication::processEvents();
    TovuButton *row = page.view->optionRows()[0];
    const QImage image = row->grab().toImage();
    const qreal dpr = image.devicePixelRatio();
    // The chosen radio mark (filled with the accent) sits 16 in from the right edge.
    const QColor mark = image.pixelColor(static_cast<int>((row->width() - 16 - 3) * dpr),
                                         static_cast<int>(row->height() / 2.0 * dpr));
    EXPECT_EQ(mark, blue);
}
