#include "TovuQuestionSamples.h"

#include <tovukit_io/ui/TovuDropdownQuestionView.h>
#include <tovukit_io/ui/TovuMultipleChoiceQuestionView.h>
#include <tovukit_io/ui/TovuSingleChoiceQuestionView.h>
#include <tovukit_io/ui/TovuTextBoxQuestionView.h>
#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuTextField.h>

#include <QTest>

namespace {

constexpr auto choices = &TovuQuestionSamples::choices;

TovuQuestion singleChoice()
{
    return {.id = "delivery",
            .type = TovuQuestionType::singleChoice,
            .title = "How was the delivery of your order?",
            .isRequired = true,
            .options = choices("opt-", {"Faster than expected", "On time", "A little late", "Very late"})};
}

TovuQuestion multipleChoice()
{
    return {.id = "features",
            .type = TovuQuestionType::multipleChoice,
            .title = "Which features do you use most?",
            .isRequired = true,
            .options = choices("opt-", {"Order tracking", "Wish list", "Saved payment methods", "Gift cards"})};
}

TovuQuestion dropdown()
{
    return {.id = "city",
            .type = TovuQuestionType::dropdown,
            .title = "Where do you usually shop with us?",
            .placeholder = "Choose a city",
            .isRequired = true,
            .options = choices("opt-", {"Amsterdam", "Berlin", "Lisbon", "Nairobi", "Toronto"})};
}

TovuQuestion textBox()
{
    return {.id = "contact",
            .type = TovuQuestionType::multipleTextBox,
            .title = "How can we reach you about your feedback?",
            .isRequired = true};
}

} // namespace

std::vector<TovuChoice> TovuQuestionSamples::choices(const char *prefix, std::initializer_list<const char *> texts)
{
    std::vector<TovuChoice> result;
    int index = 0;
    for (const char *text : texts) {
        const std::string id = prefix + std::to_string(++index);
        result.push_back({.id = id, .text = text, .value = id});
    }
    return result;
}

void TovuQuestionSamples::tap(QWidget *widget)
{
    QTest::mouseClick(widget, Qt::LeftButton);
}

std::vector<TovuQuestionSamples::Shot> TovuQuestionSamples::shots()
{
    const auto single = [] {
        return new TovuSingleChoiceQuestionView(singleChoice(), false);
    };
    const auto multiple = [] {
        return new TovuMultipleChoiceQuestionView(multipleChoice(), true);
    };
    const auto list = [] {
        return new TovuDropdownQuestionView(dropdown());
    };
    const auto text = [] {
        return new TovuTextBoxQuestionView(textBox());
    };
    return {
        {"single-choice", single, {}},
        {"single-choice-chosen", single,
         [](QWidget *page) {
             tap(as<TovuSingleChoiceQuestionView>(page)->optionRows()[1]);
         }},
        {"single-choice-required", single,
         [](QWidget *page) {
             tap(as<TovuSingleChoiceQuestionView>(page)->nextButton());
         }},
        {"multiple-choice", multiple, {}},
        {"multiple-choice-ticked", multiple,
         [](QWidget *page) {
             tap(as<TovuMultipleChoiceQuestionView>(page)->optionButtons()[0]);
             tap(as<TovuMultipleChoiceQuestionView>(page)->optionButtons()[2]);
         }},
        {"multiple-choice-required", multiple,
         [](QWidget *page) {
             tap(as<TovuMultipleChoiceQuestionView>(page)->nextButton());
         }},
        {"dropdown", list, {}},
        {"dropdown-open", list,
         [](QWidget *page) {
             tap(as<TovuDropdownQuestionView>(page)->dropdownButton());
         }},
        {"dropdown-chosen", list,
         [](QWidget *page) {
             tap(as<TovuDropdownQuestionView>(page)->dropdownButton());
             tap(as<TovuDropdownQuestionView>(page)->optionButtons()[2]);
         }},
        {"text-box", text, {}},
        {"text-box-focused", text,
         [](QWidget *page) {
             TovuTextField *email = as<TovuTextBoxQuestionView>(page)->textFields()[1];
             tap(email);
             QTest::keyClicks(email, QStringLiteral("sam@example"));
         }},
        {"text-box-required", text,
         [](QWidget *page) {
             tap(as<TovuTextBoxQuestionView>(page)->submitButton());
         }},
    };
}
