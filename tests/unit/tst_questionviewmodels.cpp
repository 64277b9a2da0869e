// The behaviour of the choice, dropdown and text pages, driven through their view
// models without any widget: what a tap selects, what submit reports or refuses.

#include <tovukit_io/viewmodel/TovuDropdownQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuMultipleChoiceQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuSingleChoiceQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuTextBoxQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuThemeEngine.h>

#include <QGuiApplication>
#include <QPalette>
#include <QRegularExpression>
#include <QSignalSpy>

#include "TovuViewModelTesting.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace {

std::vector<TovuChoice> choices(std::initializer_list<const char *> ids)
{
    std::vector<TovuChoice> result;
    for (const char *id : ids)
        result.push_back({.id = id, .text = std::string("Option ") + id, .value = id});
    return result;
}

TovuQuestion question(TovuQuestionType type, bool required, std::optional<std::vector<TovuChoice>> options)
{
    return TovuQuestion{.id = "q1", .type = type, .title = "Title", .isRequired = required, .options = options};
}

using TovuViewModelTesting::Recorder;

std::vector<std::string> rowIds(const TovuAnswer &answer)
{
    std::vector<std::string> ids;
    for (const TovuAnswerValue &value : answer.value)
        ids.push_back(value.rowId);
    return ids;
}

} // namespace

TEST(ViewModelLayer, ThemeAndModelsWorkWithoutWidgets)
{
    ASSERT_NE(qobject_cast<QGuiApplication *>(QCoreApplication::instance()), nullptr);
    EXPECT_FALSE(QCoreApplication::instance()->inherits("QApplication"));
    TovuThemeEngine engine;
    EXPECT_EQ(engine.font(16, QFont::Bold).pixelSize(), 16);
    EXPECT_EQ(engine.primaryColor(), QColor(0x00, 0x7A, 0xFF)); // nothing focused, no theme: the platform blue
    TovuAppTheme app;
    app.primaryColor = QColor(Qt::red);
    engine.configureAppTheme(app);
    EXPECT_EQ(engine.primaryColor(QGuiApplication::palette()), QColor(Qt::red));
}

TEST(SingleChoiceViewModel, ReportsTheLastChoiceOnlyWhenSubmitted)
{
    TovuSingleChoiceQuestionViewModel model(question(TovuQuestionType::singleChoice, true, choices({"a", "b", "c"})),
                                            false);
    Recorder recorder;
    recorder.attach(model);
    EXPECT_EQ(model.actionTitle(), QStringLiteral("Next \u2192"));
    EXPECT_EQ(model.selectedIndex(), -1);

    model.submit(); // required, nothing chosen: refused with the message and a shake
    EXPECT_TRUE(recorder.answers.empty());
    EXPECT_TRUE(model.isValidationVisible());
    EXPECT_EQ(model.validationMessage(), QStringLiteral("Please select an option."));
    EXPECT_EQ(recorder.shakes, 1);

    model.selectOption(0);
    EXPECT_FALSE(model.isValidationVisible()); // a tap hides the message
    model.selectOption(2);
    model.selectOption(7); // no such option: ignored
    model.selectOption(-1);
    EXPECT_TRUE(recorder.answers.empty()) << "a tap never reports";
    EXPECT_EQ(model.selectedOption()->id, "c");

    model.submit();
    model.submit(); // each tap of the button reports again
    const TovuAnswer expected{.questionId = "q1", .value = {{.rowId = "c"}}};
    EXPECT_EQ(recorder.answers, (std::vector<TovuAnswer>{expected, expected}));
}

TEST(SingleChoiceViewModel, WithoutAChoiceOnlyARequiredQuestionComplains)
{
    TovuSingleChoiceQuestionViewModel optional(question(TovuQuestionType::singleChoice, false, choices({"a"})), true);
    Recorder recorder;
    recorder.attach(optional);
    EXPECT_EQ(optional.actionTitle(), QStringLiteral("Submit"));
    optional.submit(); // left through Skip, never as an empty answer
    EXPECT_TRUE(recorder.answers.empty());
    EXPECT_FALSE(optional.isValidationVisible());
    EXPECT_EQ(recorder.shakes, 0);

    TovuSingleChoiceQuestionViewModel noOptions(question(TovuQuestionType::singleChoice, true, std::nullopt), false);
    noOptions.selectOption(0);
    EXPECT_EQ(noOptions.selectedIndex(), -1);
    noOptions.submit();
    EXPECT_TRUE(noOptions.isValidationVisible());

    TovuSingleChoiceQuestionViewModel noQuestion(std::nullopt, false);
    recorder.attach(noQuestion);
    noQuestion.selectOption(0);
    noQuestion.submit();
    EXPECT_TRUE(recorder.answers.empty());
    EXPECT_FALSE(noQuestion.isValidationVisible());
}

TEST(MultipleChoiceViewModel, TogglesByIdAndReportsInOptionOrder)
{
    struct Case {
        const char *name;
        bool required;
        std::vector<std::string> taps;
        std::optional<std::vector<std::string>> reported; // nullopt: refused
    };
    const std::vector<Case> cases{
        {"tick A, tick B, untick A", true, {"a", "b", "a"}, std::vector<std::string>{"b"}},
        {"ticked against option order", false, {"a", "c"}, std::vector<std::string>{"c", "a"}},
        {"unknown ids are ignored", false, {"zz", "b"}, std::vector<std::string>{"b"}},
        {"shared id ticks both, reported once", false, {"d"}, std::vector<std::string>{"d"}},
        {"optional, nothing ticked", false, {}, std::vector<std::string>{}},
        {"required, nothing ticked", true, {}, std::nullopt},
        {"required, ticked and unticked", true, {"a", "a"}, std::nullopt},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        TovuMultipleChoiceQuestionViewModel model(
            question(TovuQuestionType::multipleChoice, c.required, choices({"c", "b", "a", "d", "d"})), false);
        Recorder recorder;
        recorder.attach(model);
        for (const std::string &id : c.taps)
            model.toggleOption(QString::fromStdString(id));
        model.submit();
        if (!c.reported) {
            EXPECT_TRUE(recorder.answers.empty());
            EXPECT_TRUE(model.isValidationVisible());
            EXPECT_EQ(model.validationMessage(), QStringLiteral("Please select at least one option."));
            EXPECT_EQ(recorder.shakes, 1);
            model.toggleOption(QStringLiteral("b"));
            EXPECT_FALSE(model.isValidationVisible());
            continue;
        }
        ASSERT_EQ(recorder.answers.size(), 1u);
        EXPECT_EQ(recorder.answers[0].questionId, "q1");
        EXPECT_EQ(rowIds(recorder.answers[0]), *c.reported);
        for (const TovuAnswerValue &value : recorder.answers[0].value)
            EXPECT_FALSE(value.colId || value.text || value.type);
    }
}

TEST(MultipleChoiceViewModel, HintIsTheSubtitleOrTheDefault)
{
    TovuQuestion withSubtitle = question(TovuQuestionType::multipleChoice, false, choices({"a"}));
    withSubtitle.subtitle = "Pick up to three";
    EXPECT_EQ(TovuMultipleChoiceQuestionViewModel(withSubtitle, false).hint(), QStringLiteral("Pick up to three"));
    EXPECT_EQ(TovuMultipleChoiceQuestionViewModel(question(TovuQuestionType::multipleChoice, false, std::nullopt), true)
                  .hint(),
              QStringLiteral("Select all that apply"));
}

TEST(DropdownViewModel, OpensChoosesAndRevealsNext)
{
    TovuQuestion q = question(TovuQuestionType::dropdown, true, choices({"a", "b"}));
    TovuDropdownQuestionViewModel model(q);
    Recorder recorder;
    recorder.attach(model);
    QSignalSpy expanded(&model, &TovuDropdownQuestionViewModel::expandedChanged);
    EXPECT_EQ(model.selectorTitle(), QStringLiteral("Select an option"));
    EXPECT_FALSE(model.isActionVisible());
    EXPECT_EQ(model.actionTitle(), QStringLiteral("Next \u2192"));

    model.toggleExpanded();
    model.toggleExpanded(); // open and closed without choosing: nothing changes
    EXPECT_EQ(expanded.count(), 2);
    EXPECT_FALSE(model.isActionVisible());
    EXPECT_EQ(model.selectorTitle(), QStringLiteral("Select an option"));

    model.submit(); // reachable only programmatically: refused for a required question
    EXPECT_TRUE(model.isValidationVisible());
    EXPECT_EQ(recorder.shakes, 1);

    model.toggleExpanded();
    model.chooseOption(0);
    model.toggleExpanded();
    model.chooseOption(1);
    model.chooseOption(5); // ignored
    EXPECT_FALSE(model.isExpanded());
    EXPECT_FALSE(model.isValidationVisible());
    EXPECT_TRUE(model.isActionVisible());
    EXPECT_EQ(model.selectorTitle(), QStringLiteral("Option b"));
    model.submit();
    EXPECT_EQ(recorder.answers, (std::vector<TovuAnswer>{{.questionId = "q1", .value = {{.rowId = "b"}}}}));

    q.placeholder = "Choose a city";
    q.isRequired = false;
    q.options = std::vector<TovuChoice>{};
    TovuDropdownQuestionViewModel empty(q);
    Recorder quiet;
    quiet.attach(empty);
    EXPECT_EQ(empty.selectorTitle(), QStringLiteral("Choose a city"));
    empty.toggleExpanded(); // an empty list still opens
    EXPECT_TRUE(empty.isExpanded());
    empty.submit(); // optional without a choice: nothing
    EXPECT_TRUE(quiet.answers.empty());
    EXPECT_EQ(quiet.shakes, 0);
}

TEST(TextBoxViewModel, SingleFieldIsReportedAsTypedWithAFreshRowId)
{
    TovuTextBoxQuestionViewModel model(question(TovuQuestionType::singleTextBox, true, std::nullopt));
    Recorder recorder;
    recorder.attach(model);
    EXPECT_FALSE(model.isMultiple());
    EXPECT_EQ(model.fieldPlaceholders(), QStringList{QStringLiteral("Type your answer here\u2026")});
    EXPECT_EQ(model.fieldLabels(), QStringList{QString()});
    EXPECT_EQ(model.actionTitle(), QStringLiteral("Submit"));

    model.setFieldText(0, QStringLiteral("  \n\t "));
    model.submit(); // only blanks: refused, first field marked, no shake
    EXPECT_TRUE(recorder.answers.empty());
    EXPECT_TRUE(model.isValidationVisible());
    EXPECT_EQ(model.validationMessage(), QStringLiteral("Please enter an answer."));
    EXPECT_EQ(model.invalidFieldIndex(), 0);
    EXPECT_EQ(recorder.shakes, 0);

    model.fieldFocused(0);
    EXPECT_FALSE(model.isValidationVisible());
    EXPECT_EQ(model.invalidFieldIndex(), -1);

    model.setFieldText(0, QStringLiteral("  hi "));
    model.setFieldText(3, QStringLiteral("no such field"));
    model.submit();
    model.submit();
    ASSERT_EQ(recorder.answers.size(), 2u);
    const TovuAnswerValue &value = recorder.answers[0].value.at(0);
    EXPECT_EQ(value.text, "  hi ");
    EXPECT_EQ(value.type, "text");
    EXPECT_FALSE(value.colId);
    EXPECT_TRUE(TovuViewModelTesting::isUpperCaseUuid(value.rowId)) << value.rowId;
    EXPECT_NE(recorder.answers[1].value.at(0).rowId, value.rowId) << "a new id on every submit";

    TovuQuestion custom = question(TovuQuestionType::singleTextBox, false, std::nullopt);
    custom.placeholder = "Tell us more";
    EXPECT_EQ(TovuTextBoxQuestionViewModel(custom).fieldPlaceholders(), QStringList{QStringLiteral("Tell us more")});
}

TEST(TextBoxViewModel, MultipleFieldsComeFromOptionsOrTheDefaults)
{
    std::vector<TovuChoice> options = choices({"first", "work"});
    options[1].text = "Work Email";
    TovuTextBoxQuestionViewModel fromOptions(question(TovuQuestionType::multipleTextBox, true, options));
    Recorder recorder;
    recorder.attach(fromOptions);
    EXPECT_EQ(fromOptions.fieldLabels(), (QStringList{QStringLiteral("Option first"), QStringLiteral("Work Email")}));
    EXPECT_EQ(fromOptions.fieldPlaceholders().at(1), QStringLiteral("Work Email\u2026"));
    EXPECT_FALSE(fromOptions.isEmailField(0));
    EXPECT_TRUE(fromOptions.isEmailField(1)); // "email" anywhere, any case

    fromOptions.submit();
    EXPECT_EQ(fromOptions.invalidFieldIndex(), 0);
    fromOptions.fieldFocused(1); // another field: the message goes, the first field stays marked
    EXPECT_FALSE(fromOptions.isValidationVisible());
    EXPECT_EQ(fromOptions.invalidFieldIndex(), 0);

    fromOptions.setFieldText(1, QStringLiteral("a@b.example"));
    fromOptions.submit(); // one filled field satisfies a required question
    ASSERT_EQ(recorder.answers.size(), 1u);
    const std::vector<TovuAnswerValue> expected{{.rowId = "first", .text = ""},
                                                {.rowId = "work", .text = "a@b.example"}};
    EXPECT_EQ(recorder.answers[0].value, expected); // every field, no type

    TovuTextBoxQuestionViewModel defaults(question(TovuQuestionType::multipleTextBox, false, std::nullopt));
    EXPECT_EQ(defaults.fieldLabels(),
              (QStringList{QStringLiteral("Name"), QStringLiteral("Email"), QStringLiteral("Comment")}));
    EXPECT_TRUE(defaults.isEmailField(1));
    Recorder twice;
    twice.attach(defaults);
    defaults.submit();
    defaults.submit();
    ASSERT_EQ(twice.answers.size(), 2u);
    std::set<std::string> ids;
    for (const TovuAnswer &answer : twice.answers) {
        ASSERT_EQ(answer.value.size(), 3u);
        for (const TovuAnswerValue &value : answer.value) {
            EXPECT_TRUE(TovuViewModelTesting::isUpperCaseUuid(value.rowId));
            EXPECT_EQ(value.text, "");
            EXPECT_FALSE(value.type);
            ids.insert(value.rowId);
        }
    }
    EXPECT_EQ(ids.size(), 6u) << "fresh ids for every field on every submit";

    TovuTextBoxQuestionViewModel none(question(TovuQuestionType::multipleTextBox, true, std::vector<TovuChoice>{}));
    EXPECT_EQ(none.fieldCount(), 0);
}
