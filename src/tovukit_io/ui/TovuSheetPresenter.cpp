#include <tovukit_io/ui/TovuSheetPresenter.h>
#include <tovukit_io/ui/TovuWidgetsFrontEnd.h>

#include <tovukit_io/ui/TovuDropdownQuestionView.h>
#include <tovukit_io/ui/TovuIntroView.h>
#include <tovukit_io/ui/TovuMultiNPSQuestionView.h>
#include <tovukit_io/ui/TovuMultiRatingQuestionView.h>
#include <tovukit_io/ui/TovuMultipleChoiceQuestionView.h>
#include <tovukit_io/ui/TovuNPSQuestionView.h>
#include <tovukit_io/ui/TovuRatingQuestionView.h>
#include <tovukit_io/ui/TovuSingleChoiceQuestionView.h>
#include <tovukit_io/ui/TovuTextBoxQuestionView.h>
#include <tovukit_io/ui/TovuThankYouView.h>
#include <tovukit_io/ui/TovuToasterView.h>

#include <tovukit_io/core/TovuManagerSupport.h>
#include <tovukit_io/graphics/TovuEmoji.h>

#include <QApplication>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QScreen>

#include <functional>
#include <vector>

namespace {

template<class View>
View *withAnswers(View *view, TovuPageRequest &request)
{
    view->onAnswer = std::move(request.onAnswer);
    return view;
}

QWidget *questionPage(TovuPageRequest &request)
{
    const TovuQuestion &q = request.question;
    switch (q.type) {
    case TovuQuestionType::singleChoice:
        return withAnswers(new TovuSingleChoiceQuestionView(q, request.isLastQuestion), request);
    case TovuQuestionType::multipleChoice:
        return withAnswers(new TovuMultipleChoiceQuestionView(q, request.isLastQuestion), request);
    case TovuQuestionType::dropdown:
        return withAnswers(new TovuDropdownQuestionView(q), request);
    case TovuQuestionType::singleTextBox:
    case TovuQuestionType::multipleTextBox:
        return withAnswers(new TovuTextBoxQuestionView(q), request);
    case TovuQuestionType::nps: {
        auto *view = withAnswers(new TovuNPSQuestionView(q, request.isLastQuestion), request);
        view->onAdditionalAnswer = std::move(request.onAdditionalAnswer);
        return view;
    }
    case TovuQuestionType::multiNps:
        return withAnswers(new TovuMultiNPSQuestionView(q, request.isLastQuestion), request);
    case TovuQuestionType::rating:
        return withAnswers(new TovuRatingQuestionView(q, request.variant, request.maxRating, request.isLastQuestion),
                           request);
    case TovuQuestionType::multiRating:
        return withAnswers(new TovuMultiRatingQuestionView(q, request.variant, request.isLastQuestion), request);
    case TovuQuestionType::thankYou:
        break;
    }
    return nullptr;
}

constexpr QSize phoneSize(390, 844);

// Font files and the font database are shared by the process, so a pool
// thread can load them: text in the application's font, plain and bold, and
// emoji, drawn into a small image.
void loadFonts()
{
    QImage image(64, 64, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    QFont font = QGuiApplication::font();
    for (const bool bold : {false, true}) {
        font.setBold(bold);
        painter.setFont(font);
        painter.drawText(0, 32, QStringLiteral("Aa0?"));
    }
    painter.setFont(TovuEmoji::font(16));
    painter.drawText(0, 32, QStringLiteral("\U0001F600"));
}

// A sheet with one page, laid out off screen, then painted band by band:
// the first paint of a text loads its glyphs, which is what takes the time.
class OffScreenSheet
{
public:
    static constexpr int bands = 4;

    OffScreenSheet(const TovuSurvey &survey, QWidget *page)
        : m_sheet(survey)
    {
        m_sheet.resize(phoneSize);
        m_sheet.setQuestionView(page);
        m_sheet.ensurePolished();
    }

    void paintBand(int band)
    {
        const QScreen *screen = QGuiApplication::primaryScreen();
        const qreal scale = screen ? screen->devicePixelRatio() : 1;
        const int height = (phoneSize.height() + bands - 1) / bands;
        QImage image(QSize(phoneSize.width(), height) * scale, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(scale);
        m_sheet.render(&image, QPoint(), QRegion(0, band * height, phoneSize.width(), height));
    }

private:
    TovuToasterView m_sheet;
};

// Each page is built in one turn of the event loop and painted a band per
// turn after it, so no turn holds the GUI thread long.
using PageMakers = std::vector<std::function<QWidget *()>>;

void paintInTurns(QObject *context, std::shared_ptr<PageMakers> pages, const TovuSurvey &survey,
                  std::shared_ptr<OffScreenSheet> sheet, int band);

void prepareInTurns(QObject *context, std::shared_ptr<PageMakers> pages, const TovuSurvey &survey)
{
    if (pages->empty())
        return;
    auto build = std::move(pages->front());
    pages->erase(pages->begin());
    TovuManagerSupport::later(context, [context, pages, survey, build = std::move(build)] {
        paintInTurns(context, pages, survey, std::make_shared<OffScreenSheet>(survey, build()), 0);
    });
}

void paintInTurns(QObject *context, std::shared_ptr<PageMakers> pages, const TovuSurvey &survey,
                  std::shared_ptr<OffScreenSheet> sheet, int band)
{
    TovuManagerSupport::later(context, [context, pages, survey, sheet, band] {
        sheet->paintBand(band);
        if (band + 1 < OffScreenSheet::bands)
            paintInTurns(context, pages, survey, sheet, band + 1);
        else
            prepareInTurns(context, pages, survey);
    });
}

} // namespace

TovuSheetPresenter::TovuSheetPresenter(TovuUrlOpener *urlOpener)
    : m_open(*this)
    , m_urlOpener(urlOpener)
{ }

TovuSheetPresenter::~TovuSheetPresenter() = default;

QWidget *TovuSheetPresenter::createPage(TovuPageRequest request, TovuUrlOpener *urlOpener)
{
    if (request.question.type == TovuQuestionType::thankYou)
        return new TovuThankYouView(request.question, nullptr, urlOpener);
    return questionPage(request);
}

bool TovuSheetPresenter::canPresent(QObject *host) const
{
    return qobject_cast<QApplication *>(QCoreApplication::instance()) && qobject_cast<QWidget *>(host);
}

bool TovuSheetPresenter::present(const TovuSurvey &survey, QObject *host)
{
    if (!canPresent(host))
        return false;
    auto *sheet = new TovuToasterView(survey);
    m_open.replaceWith(sheet);
    sheet->present(static_cast<QWidget *>(host));
    return true;
}

void TovuSheetPresenter::showIntro(const TovuSurveyPage &page, std::function<void()> onStart)
{
    if (!m_open.get())
        return;
    auto *intro = new TovuIntroView(page);
    intro->onStart = std::move(onStart);
    m_open.get()->setProgress(0, 0);
    m_open.get()->setQuestionView(intro);
}

void TovuSheetPresenter::showQuestion(TovuPageRequest request)
{
    if (!m_open.get())
        return;
    m_open.get()->setProgress(request.questionNumber, request.questionCount);
    m_open.get()->setQuestionView(createPage(std::move(request), m_urlOpener));
}

void TovuSheetPresenter::dismiss()
{
    m_open.dismiss();
}

bool TovuSheetPresenter::isPresenting() const
{
    return m_open.isPresenting();
}

QObject *TovuSheetPresenter::sheet() const
{
    return m_open.get();
}

TovuToasterView *TovuSheetPresenter::toasterView() const
{
    return m_open.get();
}

void TovuSheetPresenter::prepare(const TovuSurvey &survey, TovuPageRequest firstQuestion)
{
    // What is loaded (font files, glyph caches, style data) is shared by the process.
    static bool prepared = false;
    // Widgets exist only in an application with a QApplication.
    if (prepared || !qobject_cast<QApplication *>(QCoreApplication::instance()))
        return;
    prepared = true;
    // Answers from a page nobody sees must go nowhere.
    firstQuestion.onAnswer = nullptr;
    firstQuestion.onAdditionalAnswer = nullptr;
    auto pages = std::make_shared<PageMakers>();
    if (survey.introPage && survey.introPage->enabled)
        pages->push_back([intro = *survey.introPage] { return new TovuIntroView(intro); });
    pages->push_back([firstQuestion = std::move(firstQuestion)] { return createPage(firstQuestion); });
    TovuManagerSupport::inBackground(
        m_open.context(), [] { return (loadFonts(), true); },
        [context = m_open.context(), pages, survey](bool) { prepareInTurns(context, pages, survey); });
}

std::unique_ptr<TovuSurveyPresenter> TovuWidgetsFrontEnd::createPresenter(TovuUrlOpener *urlOpener)
{
    return std::make_unique<TovuSheetPresenter>(urlOpener);
}
