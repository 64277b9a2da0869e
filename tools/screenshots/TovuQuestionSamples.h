#pragma once

#include <functional>
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

    TovuQuestionSamples() = delete;
};
