#include <tovukit_io/core/TovuSheetPresenter.h>

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

} // namespace

TovuSurveyPresenter::~TovuSurveyPresenter() = default;

TovuSheetPresenter::TovuSheetPresenter(TovuUrlOpener *urlOpener)
    : m_context(std::make_unique<QObject>())
    , m_urlOpener(urlOpener)
{ }

// The sheets belong to their hosts and may outlive the presenter; the
// context's end cuts every connection back to it.
TovuSheetPresenter::~TovuSheetPresenter() = default;

QWidget *TovuSheetPresenter::createPage(TovuPageRequest request, TovuUrlOpener *urlOpener)
{
    if (request.question.type == TovuQuestionType::thankYou)
        return new TovuThankYouView(request.question, nullptr, urlOpener);
    return questionPage(request);
}

bool TovuSheetPresenter::present(const TovuSurvey &survey, QObject *host)
{
    auto *hostWidget = qobject_cast<QWidget *>(host);
    if (!hostWidget)
        return false;
    if (m_sheet)
        m_sheet->dismiss();
    auto *sheet = new TovuToasterView(survey);
    sheet->onSkip = [this, alive = QPointer<QObject>(m_context.get())] {
        if (alive && onSkip)
            onSkip();
    };
    QObject::connect(sheet, &QObject::destroyed, m_context.get(), [this, sheet] {
        // A sheet replaced by a newer one closes quietly. (A widget tells of its
        // end before QPointers to it are cleared, so compare addresses.)
        if ((!m_sheet || m_sheet.data() == sheet) && onDismissed)
            onDismissed();
    });
    m_sheet = sheet;
    sheet->present(hostWidget);
    return true;
}

void TovuSheetPresenter::showIntro(const TovuSurveyPage &page, std::function<void()> onStart)
{
    if (!m_sheet)
        return;
    auto *intro = new TovuIntroView(page);
    intro->onStart = std::move(onStart);
    m_sheet->setQuestionView(intro);
}

void TovuSheetPresenter::showQuestion(TovuPageRequest request)
{
    if (m_sheet)
        m_sheet->setQuestionView(createPage(std::move(request), m_urlOpener));
}

void TovuSheetPresenter::dismiss()
{
    if (m_sheet)
        m_sheet->dismiss();
}

bool TovuSheetPresenter::isPresenting() const
{
    return m_sheet && !m_sheet->isDismissing();
}

QObject *TovuSheetPresenter::sheet() const
{
    return m_sheet;
}
