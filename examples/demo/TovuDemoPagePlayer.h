#pragma once

#include "TovuDemoGivenAnswer.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

class QWidget;
class TovuDropdownQuestionView;
class TovuIntroView;
class TovuMultiNPSQuestionView;
class TovuMultiRatingQuestionView;
class TovuMultipleChoiceQuestionView;
class TovuNPSQuestionView;
class TovuRatingQuestionView;
class TovuSingleChoiceQuestionView;
class TovuTextBoxQuestionView;
class TovuThankYouView;
class TovuToasterView;
struct TovuQuestion;

/// Answers the pages of a survey sheet one after the other, as a respondent
/// would: it clicks options, scores and buttons and types plausible text,
/// saves a screenshot of each page once it is answered, and remembers what
/// each answer must hold (TovuDemoGivenAnswer).
///
/// \code
/// TovuDemoPagePlayer player([&] { return manager.toasterView(); }, hostScreen);
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

    TovuDemoPagePlayer(std::function<TovuToasterView *()> sheet, QWidget *screen, QObject *parent = nullptr);
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

    /// "single-choice", "nps", "intro", "thank-you": a page's kind as file names use it.
    static QString kindName(const QWidget *page);

Q_SIGNALS:
    /// Page `number` of `pages` is done: its kind, title, what was answered, and its screenshot (or empty).
    void pageDone(int number, int pages, const QString &kind, const QString &title, const QString &answer,
                  const QString &screenshot);
    /// The thank-you page is up and has been saved.
    void finished();
    void failed(const QString &why);

private:
    /// One step of a page's script: `run` returns true when done, false to be
    /// tried again shortly; `what` names it when it never gets done.
    struct Step {
        std::function<bool()> run;
        QString what;
    };

    void poll();
    void begin(QWidget *page);
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
    /// A question page's script, given the page and the question it shows.
    template<typename View>
    using QuestionScript = std::vector<Step> (TovuDemoPagePlayer::*)(View *, const TovuQuestion &);

    // What each page type does.
    std::vector<Step> script(QWidget *page);
    template<typename View>
    std::vector<Step> questionScript(View *page, QuestionScript<View> answer);
    std::vector<Step> introScript(TovuIntroView *page);
    std::vector<Step> thankYouScript(TovuThankYouView *page);
    std::vector<Step> singleChoiceScript(TovuSingleChoiceQuestionView *page, const TovuQuestion &question);
    std::vector<Step> multipleChoiceScript(TovuMultipleChoiceQuestionView *page, const TovuQuestion &question);
    std::vector<Step> dropdownScript(TovuDropdownQuestionView *page, const TovuQuestion &question);
    std::vector<Step> textBoxScript(TovuTextBoxQuestionView *page, const TovuQuestion &question);
    std::vector<Step> npsScript(TovuNPSQuestionView *page, const TovuQuestion &question);
    std::vector<Step> multiNpsScript(TovuMultiNPSQuestionView *page, const TovuQuestion &question);
    std::vector<Step> ratingScript(TovuRatingQuestionView *page, const TovuQuestion &question);
    std::vector<Step> multiRatingScript(TovuMultiRatingQuestionView *page, const TovuQuestion &question);

    // What the scripts share.
    static std::vector<Step> stuck(const QString &what);
    void remember(TovuDemoGivenAnswer given);
    int rememberOption(const TovuQuestion &question, qsizetype shown);
    void shootThenClick(std::vector<Step> &steps, std::function<QWidget *()> button, const QString &what);
    std::vector<Step> answerWith(const TovuQuestion &question, std::vector<Pick> picks,
                                 std::function<QWidget *()> button, const QString &what,
                                 std::string_view separator = ", ");
    Step clickStep(std::function<QWidget *()> target, const QString &what);
    Step typeStep(std::function<QWidget *()> field, const QString &text, const QString &what);
    Step shootStep();
    void reveal(QWidget *widget);

    std::function<TovuToasterView *()> m_sheet;
    QPointer<QWidget> m_screen;
    Pace m_pace = briskPace;
    QString m_screenshotsDir;
    bool m_palette = false;

    QTimer m_poll;
    QTimer m_stepTimer;
    QElapsedTimer m_stepClock;
    QElapsedTimer m_pageClock;
    bool m_running = false;

    QPointer<QWidget> m_page;
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
