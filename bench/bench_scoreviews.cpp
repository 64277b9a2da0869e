// What showing an NPS or multi-NPS page costs on the GUI thread: building the view,
// laying it out at phone width and painting its first frame at 2x. One 120 Hz frame
// is 8.3 ms; a page should take well under half of one.

#include <tovukit_io/ui/TovuMultiNPSQuestionView.h>
#include <tovukit_io/ui/TovuNPSQuestionView.h>

#include "TovuPageBench.h"

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace {

TovuQuestion npsQuestion()
{
    return {.id = "nps",
            .type = TovuQuestionType::nps,
            .title = "How likely are you to recommend us to a friend or colleague?",
            .subtitle = "0 means not at all, 10 means extremely likely.",
            .npsLabels = TovuNPSLabels{.lower = "Not at all likely", .upper = "Extremely likely"},
            .followUpQuestion = "What is the main reason for your score?"};
}

TovuQuestion multiNpsQuestion(int rows)
{
    std::vector<TovuChoice> options;
    for (int i = 0; i < rows; ++i) {
        const std::string id = "row-" + std::to_string(i);
        options.push_back({.id = id, .text = "Part of the service number " + std::to_string(i + 1), .value = id});
    }
    return {.id = "multi",
            .type = TovuQuestionType::multiNps,
            .title = "How likely are you to recommend each of these?",
            .options = options};
}

void BM_NPS(benchmark::State &state)
{
    const TovuQuestion q = npsQuestion();
    TovuPageBench::showPage(state, [&q] { return new TovuNPSQuestionView(q, false); });
}
BENCHMARK(BM_NPS)->Unit(benchmark::kMicrosecond);

void BM_MultiNPS(benchmark::State &state)
{
    const TovuQuestion q = multiNpsQuestion(static_cast<int>(state.range(0)));
    TovuPageBench::showPage(state, [&q] { return new TovuMultiNPSQuestionView(q, false); });
}
BENCHMARK(BM_MultiNPS)->Arg(3)->Arg(10)->Unit(benchmark::kMicrosecond);

} // namespace

TOVU_PAGE_BENCH_MAIN()
