// What showing a rating or multi-rating page costs on the GUI thread: building the
// view, laying it out at phone width and painting its first frame at 2x.

#include <tovukit_io/ui/TovuMultiRatingQuestionView.h>
#include <tovukit_io/ui/TovuRatingQuestionView.h>

#include "TovuPageBench.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

std::vector<TovuChoice> choices(const char *prefix, std::int64_t count)
{
    std::vector<TovuChoice> result;
    for (std::int64_t i = 1; i <= count; ++i) {
        const std::string id = prefix + std::to_string(i);
        result.push_back({.id = id, .text = "Choice " + id, .value = id});
    }
    return result;
}

// Arg: 0 stars, 1 emoji faces; five of them.
void BM_Rating(benchmark::State &state)
{
    const TovuRatingVariant variant = state.range(0) == 0 ? TovuRatingVariant::star : TovuRatingVariant::emoji;
    const TovuQuestion q{.id = "q", .type = TovuQuestionType::rating, .title = "How would you rate your last order?"};
    TovuPageBench::showPage(state, [&] { return new TovuRatingQuestionView(q, variant, 5, false); });
}
BENCHMARK(BM_Rating)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

// Args: rows, columns (from six columns on, the strips scroll).
void BM_MultiRating(benchmark::State &state)
{
    const TovuQuestion q{.id = "q",
                         .type = TovuQuestionType::multiRating,
                         .title = "How satisfied are you with each part of your order?",
                         .options = choices("r", state.range(0)),
                         .columns = choices("c", state.range(1)),
                         .showColLabels = true};
    TovuPageBench::showPage(state, [&] { return new TovuMultiRatingQuestionView(q, TovuRatingVariant::star, false); });
}
BENCHMARK(BM_MultiRating)->Args({5, 5})->Args({10, 10})->Unit(benchmark::kMicrosecond);

} // namespace

TOVU_PAGE_BENCH_MAIN()
