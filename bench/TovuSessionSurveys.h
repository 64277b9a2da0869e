#pragma once

// What bench_session shows: the sample surveys, the largest page (a 10×10
// multi-rating grid), and for every page type what a respondent does on it
// and the tap that hands the answer on.

#include "TovuDevServer.h"
#include "TovuSessionBench.h"
#include <QApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QNetworkReply>
#include <QTemporaryDir>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <ctime>
#include <fstream>
#include <functional>
#include <malloc.h>
#include <memory>
#include <tovukit_io/core/TovuNativeSurveyManager.h>
#include <tovukit_io/core/TovuSurveyPresenter.h>
#include <tovukit_io/model/TovuLog.h>
#include <tovukit_io/model/TovuQueuedResponseJson.h>
#include <tovukit_io/network/TovuNetworkService.h>
#include <tovukit_io/platform/TovuManualPathMonitor.h>
#include <tovukit_io/platform/TovuSqliteKeyValueStore.h>
#include <tovukit_io/platform/TovuUrlOpener.h>
#include <tovukit_io/ui/TovuDropdownQuestionView.h>
#include <tovukit_io/ui/TovuMultiNPSQuestionView.h>
#include <tovukit_io/ui/TovuMultiRatingQuestionView.h>
#include <tovukit_io/ui/TovuMultipleChoiceQuestionView.h>
#include <tovukit_io/ui/TovuNPSQuestionView.h>
#include <tovukit_io/ui/TovuRatingQuestionView.h>
#include <tovukit_io/ui/TovuSingleChoiceQuestionView.h>
#include <tovukit_io/ui/TovuTextBoxQuestionView.h>
#include <tovukit_io/ui/TovuToasterView.h>
#include <tovukit_io/ui/kit/TovuTextField.h>
#include <tovukit_io/viewmodel/TovuMotion.h>
#include <type_traits>
#include <unistd.h>

namespace TovuSessionSurveys {

// -- surveys -------------------------------------------------------------------------------------

inline const std::vector<TovuSurvey> &samples()
{
    static const std::vector<TovuSurvey> surveys{TovuSessionBench::sampleSurvey("customer-satisfaction"),
                                                 TovuSessionBench::sampleSurvey("onboarding"),
                                                 TovuSessionBench::sampleSurvey("product-feedback")};
    return surveys;
}

// The first page of the samples that `matches`, or an empty question.
inline TovuQuestion sampleQuestion(const std::function<bool(const TovuQuestion &)> &matches)
{
    for (const TovuSurvey &survey : samples()) {
        const auto found = std::ranges::find_if(survey.questions, matches);
        if (found != survey.questions.end())
            return *found;
    }
    return {};
}

inline TovuSurvey customerSatisfaction()
{
    return samples()[0];
}

inline TovuSurvey customerSatisfactionWithoutIntro()
{
    TovuSurvey survey = samples()[0];
    survey.introPage.reset();
    return survey;
}

inline std::vector<TovuChoice> grid(const std::string &prefix, int count)
{
    std::vector<TovuChoice> choices;
    for (int i = 1; i <= count; ++i) {
        const std::string id = prefix + std::to_string(i);
        choices.push_back({.id = id, .text = "Part of the order number " + std::to_string(i), .value = id});
    }
    return choices;
}

// The largest page: the sample's multi-rating grid grown to ten rows of ten columns.
inline TovuSurvey multiRating10x10()
{
    TovuQuestion grid10 = sampleQuestion([](const TovuQuestion &q) { return q.type == TovuQuestionType::multiRating; });
    grid10.options = grid("row-", 10);
    grid10.columns = grid("col-", 10);
    TovuSurvey survey = customerSatisfactionWithoutIntro();
    survey.questions = {grid10, survey.questions.back()};
    return survey;
}

// -- page types ------------------------------------------------------------------------------------

// One page type: which sample page it is, what the respondent does on it (not
// timed) and the tap that hands the answer on (timed, with what follows).
struct PageKind {
    std::function<bool(const TovuQuestion &)> matches;
    std::function<void(QWidget *)> choose;
    std::function<void(QWidget *)> submit;
};

template<class View>
inline PageKind pageKind(TovuQuestionType type, std::type_identity_t<void (*)(View &)> choose, void (View::*submit)(),
                         std::string style = {})
{
    return {
        [type, style](const TovuQuestion &q) { return q.type == type && (style.empty() || q.ratingStyle == style); },
        [choose](QWidget *page) { choose(*qobject_cast<View *>(page)); },
        [submit](QWidget *page) {
            (qobject_cast<View *>(page)->*submit)();
        }};
}

inline void typeInEveryField(TovuTextBoxQuestionView &view)
{
    for (TovuTextField *field : view.textFields())
        field->setText(QStringLiteral("Quick delivery and a friendly driver, thanks!"));
}

inline void rateFour(TovuRatingQuestionView &view)
{
    view.ratingTapped(view.ratingButtons()[3]);
}

inline void rateEveryRow(TovuMultiRatingQuestionView &view)
{
    for (const auto &[rowId, buttons] : view.rowButtons())
        view.colTapped(buttons[std::min<qsizetype>(2, buttons.size() - 1)]);
}

inline void scoreEveryRow(TovuMultiNPSQuestionView &view)
{
    for (const QList<TovuButton *> &row : view.scoreButtons())
        view.scoreTapped(row[8]);
}

inline void scoreNineWithFollowUp(TovuNPSQuestionView &view)
{
    view.npsTapped(view.npsButtons()[9]);
    if (!view.followUpOptionButtons().isEmpty())
        view.followUpOptionTapped(view.followUpOptionButtons()[0]);
}

using Type = TovuQuestionType;

inline const PageKind singleChoice = pageKind<TovuSingleChoiceQuestionView>(
    Type::singleChoice, [](auto &v) { v.optionTapped(v.optionRows()[1]); }, &TovuSingleChoiceQuestionView::nextTapped);
inline const PageKind multipleChoice = pageKind<TovuMultipleChoiceQuestionView>(
    Type::multipleChoice,
    [](auto &v) {
        v.optionTapped(v.optionButtons()[0]);
        v.optionTapped(v.optionButtons()[2]);
    },
    &TovuMultipleChoiceQuestionView::nextTapped);
inline const PageKind dropdown = pageKind<TovuDropdownQuestionView>(
    Type::dropdown,
    [](auto &v) {
        v.toggleDropdown();
        v.optionTapped(v.optionButtons()[2]);
    },
    &TovuDropdownQuestionView::nextTapped);
inline const PageKind singleTextBox
    = pageKind<TovuTextBoxQuestionView>(Type::singleTextBox, typeInEveryField, &TovuTextBoxQuestionView::submitTapped);
inline const PageKind multipleTextBox = pageKind<TovuTextBoxQuestionView>(Type::multipleTextBox, typeInEveryField,
                                                                          &TovuTextBoxQuestionView::submitTapped);
inline const PageKind nps
    = pageKind<TovuNPSQuestionView>(Type::nps, scoreNineWithFollowUp, &TovuNPSQuestionView::actionTapped);
inline const PageKind multiNps
    = pageKind<TovuMultiNPSQuestionView>(Type::multiNps, scoreEveryRow, &TovuMultiNPSQuestionView::actionTapped);
inline const PageKind ratingStars
    = pageKind<TovuRatingQuestionView>(Type::rating, rateFour, &TovuRatingQuestionView::actionTapped, "stars");
inline const PageKind ratingEmoji
    = pageKind<TovuRatingQuestionView>(Type::rating, rateFour, &TovuRatingQuestionView::actionTapped, "emoji");
inline const PageKind multiRating = pageKind<TovuMultiRatingQuestionView>(Type::multiRating, rateEveryRow,
                                                                          &TovuMultiRatingQuestionView::actionTapped);

// Two pages of `kind` then the thank-you page; or, `toThankYou`, a page of `kind` then the thank-you page.
inline TovuSurvey transitionSurvey(const PageKind &kind, bool toThankYou)
{
    TovuSurvey survey = customerSatisfactionWithoutIntro();
    const TovuQuestion thankYou = survey.questions.back();
    TovuQuestion first = sampleQuestion(kind.matches);
    TovuQuestion second = first;
    second.id += "-again";
    survey.questions = toThankYou ? std::vector{first, thankYou} : std::vector{first, second, thankYou};
    return survey;
}

} // namespace TovuSessionSurveys
