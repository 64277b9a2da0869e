#include "TovuScoreSamples.h"

#include <tovukit_io/ui/TovuMultiNPSQuestionView.h>
#include <tovukit_io/ui/TovuNPSQuestionView.h>
#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuTextArea.h>

#include <QTest>

namespace {

constexpr auto choices = &TovuQuestionSamples::choices;
constexpr auto tap = &TovuQuestionSamples::tap;

// Detractors pick a reason, passives and promoters say more in their own words.
TovuQuestion nps()
{
    return {.id = "recommend",
            .type = TovuQuestionType::nps,
            .title = "How likely are you to recommend Acme Store to a friend?",
            .subtitle = "0 means not at all, 10 means extremely likely.",
            .isRequired = true,
            .npsLabels = TovuNPSLabels{.lower = "Not at all likely", .upper = "Extremely likely"},
            .followUpQuestion = "What do you love most about shopping with us?",
            .conditionalFollowUps = std::vector<TovuConditionalFollowUp>{
                {.minRating = 0,
                 .maxRating = 6,
                 .followUpQuestion = "What disappointed you the most?",
                 .questionId = "recommend-reason",
                 .followUpType = TovuQuestionType::singleChoice,
                 .followUpOptions = choices("reason-",
                                            {"Delivery took too long", "Prices are too high",
                                             "The product was not as described", "Something else"})},
                {.minRating = 7,
                 .maxRating = 8,
                 .followUpQuestion = "What would make it a 10?",
                 .questionId = "recommend-better"},
            }};
}

TovuQuestion multiNps()
{
    return {.id = "aspects",
            .type = TovuQuestionType::multiNps,
            .title = "How likely are you to recommend each of these?",
            .isRequired = true,
            .options = choices("aspect-", {"Our mobile app", "Our delivery service", "Our customer support"})};
}

} // namespace

std::vector<TovuQuestionSamples::Shot> TovuScoreSamples::shots()
{
    const auto score = [] {
        return new TovuNPSQuestionView(nps(), false);
    };
    const auto rows = [] {
        return new TovuMultiNPSQuestionView(multiNps(), true);
    };
    return {
        {"nps", score, {}},
        {"nps-detractor", score,
         [](QWidget *page) {
             auto *view = TovuQuestionSamples::as<TovuNPSQuestionView>(page);
             tap(view->npsButtons()[3]);
             tap(view->followUpOptionButtons()[0]);
         }},
        {"nps-promoter", score,
         [](QWidget *page) {
             auto *view = TovuQuestionSamples::as<TovuNPSQuestionView>(page);
             tap(view->npsButtons()[10]);
             tap(view->followUpText());
             QTest::keyClicks(view->followUpText(), QStringLiteral("Fast delivery and friendly support"));
         }},
        {"multi-nps", rows, {}},
        {"multi-nps-rated", rows,
         [](QWidget *page) {
             auto *view = TovuQuestionSamples::as<TovuMultiNPSQuestionView>(page);
             tap(view->scoreButtons()[0][9]);
             tap(view->scoreButtons()[2][8]);
         }},
        {"multi-nps-required", rows,
         [](QWidget *page) {
             auto *view = TovuQuestionSamples::as<TovuMultiNPSQuestionView>(page);
             tap(view->scoreButtons()[1][7]);
             tap(view->actionButton());
         }},
    };
}
