#pragma once

#include <tovukit_io/core/TovuOpenSheet.h>
#include <tovukit_io/core/TovuSurveyPresenter.h>

#include <QPointer>

#include <memory>

class QQmlEngine;
class QQuickItem;
class TovuQuickSheet;
class TovuUrlOpener;

/// The Qt Quick presenter: the `TovuSurveySheet` of the QML module `TovuKit`
/// over a QQuickWindow or any QQuickItem, with the module's pages over the
/// view models. Linking tovukit_quick adds it to TovuFrontEnds.
///
/// Sheets and pages are made in the host's own QML engine (the one that loaded
/// the window or item), or in one the presenter keeps for hosts built in C++.
class TovuQuickPresenter : public TovuSurveyPresenter
{
public:
    /// `urlOpener` opens thank-you redirects (the default opener when null);
    /// it must outlive the pages.
    explicit TovuQuickPresenter(TovuUrlOpener *urlOpener = nullptr);
    ~TovuQuickPresenter() override;

    /// A QQuickWindow or a QQuickItem.
    bool canPresent(QObject *host) const override;
    bool present(const TovuSurvey &survey, QObject *host) override;
    void showIntro(const TovuSurveyPage &page, std::function<void()> onStart) override;
    void showQuestion(TovuPageRequest request) override;
    void dismiss() override;
    bool isPresenting() const override;
    QObject *sheet() const override;
    /// Once per process, when the event loop is idle: compiles the sheet and the
    /// pages the survey starts with in the QML engine of the application's first
    /// Qt Quick window, and builds and lays them out once off screen.
    void prepare(const TovuSurvey &survey, TovuPageRequest firstQuestion) override;

    TovuQuickSheet *quickSheet() const;

    /// The engine pages for `host` are made in.
    static QQmlEngine *engineFor(QObject *host);
    /// A sheet for `survey`, made in `engine`, not yet presented; null (and a console
    /// line) if the module's files cannot be loaded.
    static TovuQuickSheet *createSheet(QQmlEngine *engine, const TovuSurvey &survey);
    /// The page for one request, made in `engine`, not yet in a sheet.
    static QQuickItem *createPage(QQmlEngine *engine, TovuPageRequest request, TovuUrlOpener *urlOpener = nullptr);
    /// The intro page, made in `engine`.
    static QQuickItem *createIntroPage(QQmlEngine *engine, const TovuSurveyPage &page, std::function<void()> onStart);

private:
    void showPage(QQuickItem *page);

    TovuOpenSheet<TovuQuickSheet> m_open;
    QPointer<QQmlEngine> m_engine;
    TovuUrlOpener *m_urlOpener;
};
