#pragma once

#include <tovukit_io/model/TovuAnswer.h>
#include <tovukit_io/model/TovuRatingVariant.h>
#include <tovukit_io/model/TovuSurvey.h>

#include <QObject>

#include <functional>

/// One page the session wants shown: the question, what its view needs and
/// where its answers go. The callbacks that a page type does not use are empty.
struct TovuPageRequest {
    TovuQuestion question;
    bool isLastQuestion = false;
    TovuRatingVariant variant = TovuRatingVariant::star; ///< rating and multi-rating pages
    int maxRating = 5; ///< rating pages
    std::function<void(const TovuAnswer &)> onAnswer;
    std::function<void(const TovuAnswer &)> onAdditionalAnswer; ///< NPS follow-ups
    /// Which question page of how many this is, for the progress indicator; both 0
    /// when the host shows no progress (TovuAppTheme::showsProgress) and on the thank-you page.
    int questionNumber = 0;
    int questionCount = 0;
};

/// Puts a survey session on screen. The manager decides what to show and
/// when; a presenter only shows it: the Qt Widgets sheet (TovuSheetPresenter,
/// linked with tovukit_io) or the Qt Quick sheet (TovuQuickPresenter, linked
/// with tovukit_quick), whichever can cover the host (TovuFrontEnds).
/// Presenters live on the GUI thread.
class TovuSurveyPresenter
{
public:
    virtual ~TovuSurveyPresenter();

    /// Whether `host` is something this presenter can cover (a widget, a Qt
    /// Quick window or item, …) in this application.
    virtual bool canPresent(QObject *host) const = 0;
    /// Opens a sheet for `survey` over `host`, closing one still open.
    /// Returns false when `host` is not something this presenter can cover.
    virtual bool present(const TovuSurvey &survey, QObject *host) = 0;
    /// The survey's intro page; `onStart` when the respondent starts.
    virtual void showIntro(const TovuSurveyPage &page, std::function<void()> onStart) = 0;
    /// The page for `request.question`, by its type (the thank-you page for "THANK_YOU").
    virtual void showQuestion(TovuPageRequest request) = 0;
    /// Closes the open sheet, if any.
    virtual void dismiss() = 0;
    /// Whether a sheet is open and not closing.
    virtual bool isPresenting() const = 0;
    /// The open sheet (a TovuToasterView, a TovuQuickSheet), or null.
    virtual QObject *sheet() const = 0;
    /// Told when the manager holds a survey that is not on screen yet, with
    /// the first question's page: a chance to load in idle time what showing
    /// it will need (fonts, glyphs, styles), so the sheet appears without a
    /// hitch. Does nothing unless overridden.
    virtual void prepare(const TovuSurvey &survey, TovuPageRequest firstQuestion);

    /// Told when the respondent closes the sheet with Skip.
    std::function<void()> onSkip;
    /// Told once a sheet has gone, however it was closed.
    std::function<void()> onDismissed;
};
