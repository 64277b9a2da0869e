// What showing a question page costs on the GUI thread: building the view, laying
// it out at phone width and painting its first frame at 2x. One 120 Hz frame is
// 8.3 ms; a page should take well under half of one.

#include <tovukit_io/ui/TovuDropdownQuestionView.h>
#include <tovukit_io/ui/TovuMultipleChoiceQuestionView.h>
#include <tovukit_io/ui/TovuSingleChoiceQuestionView.h>
#include <tovukit_io/ui/TovuTextBoxQuestionView.h>
#include <tovukit_io/viewmodel/TovuMotion.h>

#include "TovuPageBench.h"

#include <QApplication>

#include <benchmark/benchmark.h>

#include <string>

namespace {

std::vector<TovuChoice> options(int count)
{
    std::vector<TovuChoice> result;
    for (int i = 0; i < count; ++i) {
        const std::string id = "opt-" + std::to_string(i);
        result.push_back({.id = id, .text = "Answer option number " + std::to_string(i + 1), .value = id});
    }
    return result;
}

TovuQuestion question(TovuQuestionType type, int optionCount)
{
    TovuQuestion q{.id = "q", .type = type, .title = "How would you describe your last order with us?"};
    if (optionCount > 0)
        q.options = options(optionCount);
    return q;
}

void BM_SingleChoice(benchmark::State &state)
{
    const TovuQuestion q = question(TovuQuestionType::singleChoice, static_cast<int>(state.range(0)));
    TovuPageBench::showPage(state, [&q] { return new TovuSingleChoiceQuestionView(q, false); });
}
BENCHMARK(BM_SingleChoice)->Arg(4)->Arg(30)->Unit(benchmark::kMicrosecond);

void BM_MultipleChoice(benchmark::State &state)
{
    const TovuQuestion q = question(TovuQuestionType::multipleChoice, static_cast<int>(state.range(0)));
    TovuPageBench::showPage(state, [&q] { return new TovuMultipleChoiceQuestionView(q, false); });
}
BENCHMARK(BM_MultipleChoice)->Arg(4)->Arg(30)->Unit(benchmark::kMicrosecond);

void BM_Dropdown(benchmark::State &state)
{
    const TovuQuestion q = question(TovuQuestionType::dropdown, static_cast<int>(state.range(0)));
    TovuPageBench::showPage(state, [&q] { return new TovuDropdownQuestionView(q); });
}
BENCHMARK(BM_Dropdown)->Arg(5)->Arg(200)->Unit(benchmark::kMicrosecond);

void BM_TextBox(benchmark::State &state)
{
    const bool multiple = state.range(0) > 1;
    const TovuQuestion q = question(multiple ? TovuQuestionType::multipleTextBox : TovuQuestionType::singleTextBox, 0);
    TovuPageBench::showPage(state, [&q] { return new TovuTextBoxQuestionView(q); });
}
BENCHMARK(BM_TextBox)->Arg(1)->Arg(3)->Unit(benchmark::kMicrosecond);

} // namespace

TOVU_PAGE_BENCH_MAIN()
