#pragma once

#include "TovuDemoGivenAnswer.h"

#include <QElapsedTimer>
#include <QImage>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

class TovuDropdownQuestionViewModel;
class TovuIntroViewModel;
class TovuMultiNPSQuestionViewModel;
class TovuMultiRatingQuestionViewModel;
class TovuMultipleChoiceQuestionViewModel;
class TovuNPSQuestionViewModel;
class TovuQuestionViewModel;
class TovuRatingQuestionViewModel;
class TovuSingleChoiceQuestionViewModel;
class TovuTextBoxQuestionViewModel;
class TovuThankYouViewModel;
struct TovuQuestion;

/// Answers the pages of a survey sheet one after the other, as a respondent
/// would: it clicks options, scores and buttons and types plausible text,
/// saves a screenshot of each page once it is answered, and remembers what
/// each answer must hold (TovuDemoGivenAnswer).
///
/// What to answer is decided here, from the view model each page draws, so
/// every front end plays a survey alike; a subclass finds the controls on its
/// toolkit's pages and operates them with real input events.
///
/// \code
/// TovuDemoWidgetPagePlayer player([&] { return manager.toasterView(); }, hostScreen);
/// player.setScreenshotsDir("shots");
/// connect(&player, &TovuDemoPagePlayer::finished, ...);  // the thank-you page is up
/// player.start(11);
/// manager.fetchAndPresentSurvey(hostScreen);
/// \endcode
///
/// It watches the sheet for its pages, so it may start before the sheet is up.
class TovuDemoPagePlayer : public QObject
{
    Q_OBJECT
public:
    /// How fast it goes: a pause before each page is touched, and between
    /// steps on it; characters typed per step (a negative number: all at once).
    struct Pace {
        int thinkMs;
        int stepMs;
        int charactersPerStep;
    };
    /// Quick, for runs nobody watches (animations should be off).
    static constexpr Pace briskPace{60, 20, -1};
    /// Slow enough to follow, for a window on screen.
    static constexpr Pace humanPace{900, 450, 2};

    /// A control of a page, named by what it does; each front end finds it in its own way.
    struct Control {
        enum class Kind {
            start, ///< the intro's button
            action, ///< "Next →", "Submit"
            option, ///< the option row `index`
            selector, ///< the dropdown's button
            listedOption, ///< the option `index` of the dropdown's open list
            field, ///< the text field `index`
            score, ///< score `index`, in the scale of `row` on a multi-NPS page
            followUpOption, ///< the follow-up's option `id`
            followUpField, ///< the follow-up's text
            rating, ///< the rating button at position `index` (from 1)
            cell, ///< the multi-rating button `id` ("rowId::columnId"), position `index` in row `row`
        };
        Kind kind;
        int index = 0;
        int row = -1;
        QString id;
    };

    explicit TovuDemoPagePlayer(QObject *parent = nullptr);
    ~TovuDemoPagePlayer() override;

    void setPace(Pace pace) { m_pace = pace; }
    /// Where page screenshots go, as NN-kind.png; empty: none are saved.
    void setScreenshotsDir(const QString &dir) { m_screenshotsDir = dir; }
    /// Saves screenshots with a 256-colour palette (see TovuDemoPng).
    void setPaletteScreenshots(bool palette) { m_palette = palette; }

    /// Answers every page the sheet shows from now on; `pages` (intro and
    /// thank-you included) is only used to number them "3/11".
    void start(int pages);
    void stop();

    const std::vector<TovuDemoGivenAnswer> &given() const { return m_given; }
    /// The files saved, in page order.
    const QStringList &screenshots() const { return m_screenshots; }

    /// "single-choice", "nps", "intro", "thank-you": the kind of page a view model
    /// stands for, as file names use it.
    static QString kindName(const QObject *model);

Q_SIGNALS:
    /// Page `number` of `pages` is done: its kind, title, what was answered, and its screenshot (or empty).
    void pageDone(int number, int pages, const QString &kind, const QString &title, const QString &answer,
                  const QString &screenshot);
    /// The thank-you page is up and has been saved.
    void finished();
    void failed(const QString &why);

protected:
    /// The page the sheet shows, once it is on screen; null otherwise.
    virtual QObject *shownPage() const = 0;
    /// The view model `page` draws.
    virtual QObject *modelOf(QObject *page) const = 0;
    /// Whether `control` is on `page`, on screen and taking input.
    virtual bool isReady(QObject *page, const Control &control) const = 0;
    /// A click in the middle of `control` on `page`, scrolled into view first.
    virtual void click(QObject *page, const Control &control) = 0;
    /// Clicks into the text field `field` so that it takes the keys typed next.
    virtual void focus(QObject *page, const Control &field) = 0;
    virtual void type(QObject *page, const Control &field, const QString &text) = 0;
    /// Whether the thank-you page `page` has finished coming in.
    virtual bool hasSettled(QObject *page) const = 0;
    /// The host screen with the sheet over it, as the respondent sees it.
    virtual QImage screenshot() const = 0;

private:
    /// One step of a page's script: `run` returns true when done, false to be
    /// tried again shortly; `what` names it when it never gets done.
    struct Step {
        std::function<bool()> run;
        QString what;
    };

    void poll();
    void begin(QObject *page);
    void runStep();
    void finishPage();
    void fail(const QString &why);

    /// One of the answers a page of several takes: the value it records, how
    /// the summary shows it, and the step that gives it.
    struct Pick {
        TovuDemoGivenAnswer::Value value;
        std::string text;
        Step step;
    };
    /// A question page's script, given its model and the question it shows.
    template<typename Model>
    using QuestionScript = std::vector<Step> (TovuDemoPagePlayer::*)(Model *, const TovuQuestion &);

    // What each page type does.
    std::vector<Step> script(QObject *model);
    template<typename Model>
    std::vector<Step> questionScript(Model *model, QuestionScript<Model> answer);
    std::vector<Step> introScript(TovuIntroViewModel *model);
    std::vector<Step> thankYouScript(TovuThankYouViewModel *model);
    std::vector<Step> singleChoiceScript(TovuSingleChoiceQuestionViewModel *model, const TovuQuestion &question);
    std::vector<Step> multipleChoiceScript(TovuMultipleChoiceQuestionViewModel *model, const TovuQuestion &question);
    std::vector<Step> dropdownScript(TovuDropdownQuestionViewModel *model, const TovuQuestion &question);
    std::vector<Step> textBoxScript(TovuTextBoxQuestionViewModel *model, const TovuQuestion &question);
    std::vector<Step> npsScript(TovuNPSQuestionViewModel *model, const TovuQuestion &question);
    std::vector<Step> multiNpsScript(TovuMultiNPSQuestionViewModel *model, const TovuQuestion &question);
    std::vector<Step> ratingScript(TovuRatingQuestionViewModel *model, const TovuQuestion &question);
    std::vector<Step> multiRatingScript(TovuMultiRatingQuestionViewModel *model, const TovuQuestion &question);
    /// A page this player does not know how to answer: it only takes the action.
    std::vector<Step> actionOnlyScript(TovuQuestionViewModel *model, const TovuQuestion &question);
    Step npsFollowUpStep(TovuNPSQuestionViewModel *model, const TovuQuestion &question, int score);

    // What the scripts share.
    static std::vector<Step> stuck(const QString &what);
    void remember(TovuDemoGivenAnswer given);
    int rememberOption(const TovuQuestion &question, qsizetype shown);
    void shootThenClick(std::vector<Step> &steps, const Control &button, const QString &what);
    std::vector<Step> answerWith(const TovuQuestion &question, std::vector<Pick> picks, const QString &what,
                                 std::string_view separator = ", ");
    Step clickStep(Control target, const QString &what);
    Step typeStep(Control field, const QString &text, const QString &what);
    Step shootStep();
    bool ready(const Control &control) const;

    Pace m_pace = briskPace;
    QString m_screenshotsDir;
    bool m_palette = false;

    QTimer m_poll;
    QTimer m_stepTimer;
    QElapsedTimer m_stepClock;
    QElapsedTimer m_pageClock;
    bool m_running = false;

    QPointer<QObject> m_page;
    QPointer<QObject> m_model;
    int m_pages = 0;
    int m_number = 0;
    std::vector<Step> m_steps;
    std::size_t m_step = 0;
    bool m_scriptDone = false;
    bool m_lastPage = false;
    QString m_kind;
    QString m_title;
    QString m_answer;
    QString m_shot;
    int m_typed = 0;

    std::vector<TovuDemoGivenAnswer> m_given;
    QStringList m_screenshots;
};
