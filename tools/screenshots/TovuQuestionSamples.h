#pragma once

#include <tovukit_io/model/TovuSurvey.h>

#include <functional>
#include <initializer_list>
#include <vector>

class QWidget;

/// The question pages tovu-screenshots shows: each untouched, after a choice and
/// with its validation message, the dropdown open, the text box with a focused field.
class TovuQuestionSamples
{
public:
    struct Shot {
        const char *name;
        std::function<QWidget *()> makePage;
        /// What the respondent did before the picture; may be empty.
        std::function<void(QWidget *)> act;
    };

    static std::vector<Shot> shots();

    /// Options with ids `prefix`1, `prefix`2, … and the given texts.
    static std::vector<TovuChoice> choices(const char *prefix, std::initializer_list<const char *> texts);
    /// A click, as the respondent's tap.
    static void tap(QWidget *widget);
    /// The page a Shot made, as the view it is.
    template<class View>
    static View *as(QWidget *page)
    {
        return static_cast<View *>(page);
    }

    TovuQuestionSamples() = delete;
};
