#include "TovuPlaceholderViewModel.h"

TovuPlaceholderViewModel::TovuPlaceholderViewModel(TovuQuestion question, bool isLastQuestion, QObject *parent)
    : TovuQuestionViewModel(std::move(question), isLastQuestion, QString(), parent)
{ }

void TovuPlaceholderViewModel::submitQuestion(const TovuQuestion &question)
{
    report(TovuAnswer{.questionId = question.id});
}
