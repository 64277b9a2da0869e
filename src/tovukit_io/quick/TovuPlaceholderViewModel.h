#pragma once

#include <tovukit_io/viewmodel/TovuQuestionViewModel.h>

// A question type the Qt Quick front end does not draw yet (multi-rating):
// its action reports an answer without values, so the session goes on. Not installed.
class TovuPlaceholderViewModel : public TovuQuestionViewModel
{
    Q_OBJECT

public:
    TovuPlaceholderViewModel(TovuQuestion question, bool isLastQuestion, QObject *parent = nullptr);

protected:
    void submitQuestion(const TovuQuestion &question) override;
};
