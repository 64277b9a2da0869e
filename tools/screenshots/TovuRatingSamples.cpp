#include "TovuRatingSamples.h"

#include <tovukit_io/ui/TovuMultiRatingQuestionView.h>
#include <tovukit_io/ui/TovuRatingQuestionView.h>
#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuScrollStrip.h>
#include <tovukit_io/ui/kit/TovuTextArea.h>

#include <QScrollBar>
#include <QTest>

#include <string>

namespace {

constexpr auto choices = &TovuQuestionSamples::choices;
constexpr auto tap = &TovuQuestionSamples::tap;

TovuQuestion rating()
{
    return {.id = "overall",
            .type = TovuQuestionType::rating,
            .title = "How would you rate your last order?",
            .isRequired = true};
}

TovuQuestion labelledRating()
{
    TovuQuestion q = rating();
    q.columns = choices("c", {"Very poor", "Poor", "Okay", "Good", "Excellent"});
    q.showColLabels = true;
    q.conditionalFollowUps = std::vector<TovuConditionalFollowUp>{
        {.minRating = 1, .maxRating = 3, .followUpQuestion = "What should we do better?"},
        {.minRating = 4, .maxRating = 5, .followUpQuestion = "What did you like most?"}};
    return q;
}

TovuQuestion grid(std::vector<TovuChoice> columns)
{
    return {.id = "aspects",
            .type = TovuQuestionType::multiRating,
            .title = "How satisfied are you with each part of your order?",
            .subtitle = "Rate every item",
            .isRequired = true,
            .options = choices("r", {"Delivery speed", "Packaging", "Product quality"}),
            .columns = std::move(columns),
            .showColLabels = true};
}

TovuQuestionSamples::Shot ratingShot(const char *name, TovuRatingVariant variant)
{
    return {name, [variant] { return new TovuRatingQuestionView(rating(), variant, 5, false); },
            [](QWidget *page) {
                tap(TovuQuestionSamples::as<TovuRatingQuestionView>(page)->ratingButtons()[2]);
            }};
}

void rateRows(QWidget *page, std::initializer_list<const char *> identifiers)
{
    auto *view = TovuQuestionSamples::as<TovuMultiRatingQuestionView>(page);
    for (const char *identifier : identifiers) {
        for (const auto &[row, buttons] : view->rowButtons()) {
            for (TovuButton *button : buttons) {
                if (button->objectName() == QString::fromUtf8(identifier))
                    tap(button);
            }
        }
    }
}

} // namespace

std::vector<TovuQuestionSamples::Shot> TovuRatingSamples::shots()
{
    return {
        ratingShot("rating-star", TovuRatingVariant::star),
        ratingShot("rating-heart", TovuRatingVariant::heart),
        ratingShot("rating-circle", TovuRatingVariant::circle),
        ratingShot("rating-tile", TovuRatingVariant::tile),
        ratingShot("rating-emoji", TovuRatingVariant::emoji),
        ratingShot("rating-numeric", TovuRatingVariant::numeric),
        {"rating-labels-followup",
         [] { return new TovuRatingQuestionView(labelledRating(), TovuRatingVariant::star, 5, true); },
         [](QWidget *page) {
             auto *view = TovuQuestionSamples::as<TovuRatingQuestionView>(page);
             tap(view->ratingButtons()[3]);
             tap(view->followUpText());
             QTest::keyClicks(view->followUpText(), QStringLiteral("Quick delivery"));
         }},
        {"multi-rating-5",
         [] {
             return new TovuMultiRatingQuestionView(
                 grid(choices("c", {"Very poor", "Poor", "Okay", "Good", "Excellent"})), TovuRatingVariant::star,
                 false);
         },
         [](QWidget *page) {
             rateRows(page, {"r1::c4", "r2::c2"});
         }},
        {"multi-rating-required",
         [] {
             return new TovuMultiRatingQuestionView(grid(choices("c", {"Bad", "Poor", "Okay", "Good", "Great"})),
                                                    TovuRatingVariant::heart, true);
         },
         [](QWidget *page) {
             rateRows(page, {"r1::c5"});
             tap(TovuQuestionSamples::as<TovuMultiRatingQuestionView>(page)->actionButton());
         }},
        {"multi-rating-7",
         [] {
             return new TovuMultiRatingQuestionView(
                 grid(choices("c", {"Awful", "Bad", "Poor", "Okay", "Good", "Great", "Superb"})),
                 TovuRatingVariant::emoji, false);
         },
         [](QWidget *page) {
             rateRows(page, {"r1::c6", "r2::c3"});
             for (TovuScrollStrip *strip : TovuQuestionSamples::as<TovuMultiRatingQuestionView>(page)->buttonStrips())
                 strip->horizontalScrollBar()->setValue(strip->horizontalScrollBar()->maximum());
         }},
    };
}
