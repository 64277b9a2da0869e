#pragma once

#include <tovukit_io/core/TovuOpenSheet.h>
#include <tovukit_io/core/TovuSurveyPresenter.h>

#include <QPointer>

#include <memory>

class QWidget;
class TovuToasterView;
class TovuUrlOpener;

/// The Qt Widgets presenter: a TovuToasterView over a host widget, with the
/// intro, question and thank-you views of the ui layer as its pages. Linking
/// tovukit_io adds it to TovuFrontEnds, so the manager uses it for any
/// QWidget host of an application that has a QApplication.
class TovuSheetPresenter : public TovuSurveyPresenter
{
public:
    /// `urlOpener` opens thank-you redirects (the default opener when null);
    /// it must outlive the pages.
    explicit TovuSheetPresenter(TovuUrlOpener *urlOpener = nullptr);
    ~TovuSheetPresenter() override;

    /// A QWidget, in an application that has a QApplication (widgets exist in no other).
    bool canPresent(QObject *host) const override;
    bool present(const TovuSurvey &survey, QObject *host) override;
    void showIntro(const TovuSurveyPage &page, std::function<void()> onStart) override;
    void showQuestion(TovuPageRequest request) override;
    void dismiss() override;
    bool isPresenting() const override;
    QObject *sheet() const override;
    /// Once per process, when the event loop is idle: the sheet with the
    /// intro page, then with the first question, laid out and painted off
    /// screen, one per turn of the event loop.
    void prepare(const TovuSurvey &survey, TovuPageRequest firstQuestion) override;

    TovuToasterView *toasterView() const;

    /// The view for one page, not yet in a sheet.
    static QWidget *createPage(TovuPageRequest request, TovuUrlOpener *urlOpener = nullptr);

private:
    TovuOpenSheet<TovuToasterView> m_open;
    TovuUrlOpener *m_urlOpener;
};
