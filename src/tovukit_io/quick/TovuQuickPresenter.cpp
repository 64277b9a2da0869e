#include <tovukit_io/quick/TovuQuickPresenter.h>

#include <tovukit_io/core/TovuFrontEnds.h>
#include <tovukit_io/core/TovuManagerSupport.h>
#include <tovukit_io/core/TovuScriptCallbacks.h>
#include <tovukit_io/model/TovuLog.h>
#include <tovukit_io/quick/TovuQuickFrontEnd.h>
#include <tovukit_io/quick/TovuQuickSheet.h>
#include <tovukit_io/quick/TovuQuickStyle.h>
#include <tovukit_io/viewmodel/TovuDropdownQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuIntroViewModel.h>
#include <tovukit_io/viewmodel/TovuMultiNPSQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuMultiRatingQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuMultipleChoiceQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuNPSQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuRatingQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuSingleChoiceQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuTextBoxQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuThankYouViewModel.h>

#include <QCoreApplication>
#include <QGuiApplication>
#include <QJSValue>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <algorithm>

namespace {

// Where the module's QML files are: its resource prefix is a default import path
// of every Qt 6 version, so hosts add none.
QUrl moduleFile(QLatin1StringView name)
{
    return QUrl(QLatin1StringView("qrc:/qt-project.org/imports/TovuKit/") + name + QLatin1StringView(".qml"));
}

// One compiled component per file and engine.
QQmlComponent *component(QQmlEngine *engine, QLatin1StringView name)
{
    const QByteArray key = QByteArrayLiteral("_tovukit_") + QByteArray(name.data(), name.size());
    if (auto *known = engine->property(key.constData()).value<QQmlComponent *>())
        return known;
    auto *made = new QQmlComponent(engine, moduleFile(name), QQmlComponent::PreferSynchronous, engine);
    if (made->isError())
        TovuLog::print(">>> Tovu SDK Error: The survey page " + name.toString().toStdString()
                       + " cannot be built: " + made->errorString().trimmed().toStdString());
    engine->setProperty(key.constData(), QVariant::fromValue(made));
    return made;
}

// Makes the page `name` over `model`, which it then owns; null (the model
// deleted) when the file cannot be built.
QQuickItem *page(QQmlEngine *engine, QLatin1StringView name, QObject *model)
{
    QQmlComponent *maker = component(engine, name);
    QObject *made = maker->isReady() ? maker->createWithInitialProperties(
                        {{QStringLiteral("model"), QVariant::fromValue(model)}}, engine->rootContext())
                                     : nullptr;
    auto *item = qobject_cast<QQuickItem *>(made);
    if (!item) {
        delete made;
        delete model;
        return nullptr;
    }
    model->setParent(item);
    return item;
}

template<class Model>
QQuickItem *questionPage(QQmlEngine *engine, QLatin1StringView name, Model *model, TovuPageRequest &request)
{
    model->onAnswer = std::move(request.onAnswer);
    return page(engine, name, model);
}

// For hosts no QML engine made (a window built in C++): one engine for the
// process, ended with the application so it outlives every page it made.
QQmlEngine *ownEngine()
{
    static QPointer<QQmlEngine> engine;
    if (!engine)
        engine = new QQmlEngine(QCoreApplication::instance());
    return engine;
}

QQuickWindow *firstQuickWindow()
{
    const QWindowList windows = QGuiApplication::topLevelWindows();
    const auto found
        = std::ranges::find_if(windows, [](QWindow *window) { return qobject_cast<QQuickWindow *>(window); });
    return found == windows.end() ? nullptr : static_cast<QQuickWindow *>(*found);
}

QQuickItem *coverFor(QObject *host)
{
    if (auto *window = qobject_cast<QQuickWindow *>(host))
        return window->contentItem();
    return qobject_cast<QQuickItem *>(host);
}

} // namespace

TovuQuickPresenter::TovuQuickPresenter(TovuUrlOpener *urlOpener)
    : m_open(*this)
    , m_urlOpener(urlOpener)
{ }

TovuQuickPresenter::~TovuQuickPresenter() = default;

std::unique_ptr<TovuSurveyPresenter> TovuQuickFrontEnd::createPresenter(TovuUrlOpener *urlOpener)
{
    return std::make_unique<TovuQuickPresenter>(urlOpener);
}

bool TovuQuickFrontEnd::install()
{
    TovuScriptCallbacks::setInvoker([](const QVariant &callback, const QVariantList &arguments) {
        QJSValue function = callback.value<QJSValue>();
        if (!function.isCallable())
            return;
        QJSValueList values;
        for (const QVariant &argument : arguments) {
            switch (argument.typeId()) {
            case QMetaType::Bool:
                values.append(QJSValue(argument.toBool()));
                break;
            case QMetaType::Int:
                values.append(QJSValue(argument.toInt()));
                break;
            default:
                values.append(QJSValue(argument.toString()));
                break;
            }
        }
        function.call(values);
    });
    return TovuFrontEnds::add({"quick", &TovuQuickFrontEnd::createPresenter});
}

QQmlEngine *TovuQuickPresenter::engineFor(QObject *host)
{
    if (QQmlEngine *engine = qmlEngine(host))
        return engine;
    QQuickWindow *window = qobject_cast<QQuickWindow *>(host);
    if (auto *item = qobject_cast<QQuickItem *>(host))
        window = item->window();
    if (window) {
        if (QQmlEngine *engine = qmlEngine(window))
            return engine;
        if (QQmlEngine *engine = qmlEngine(window->contentItem()))
            return engine;
    }
    return ownEngine();
}

bool TovuQuickPresenter::canPresent(QObject *host) const
{
    return coverFor(host) != nullptr;
}

TovuQuickSheet *TovuQuickPresenter::createSheet(QQmlEngine *engine, const TovuSurvey &survey)
{
    QQmlComponent *maker = component(engine, QLatin1StringView("TovuSurveySheet"));
    auto *sheet = maker->isReady() ? qobject_cast<TovuQuickSheet *>(maker->create(engine->rootContext())) : nullptr;
    if (sheet && survey.theme && survey.theme->transparency)
        sheet->setDimmingAlpha(static_cast<qreal>(*survey.theme->transparency));
    return sheet;
}

bool TovuQuickPresenter::present(const TovuSurvey &survey, QObject *host)
{
    QQuickItem *cover = coverFor(host);
    if (!cover)
        return false;
    // The survey's theme may have changed since the pages last read it.
    TovuQuickStyle::refreshAll();
    QQmlEngine *engine = engineFor(host);
    TovuQuickSheet *sheet = createSheet(engine, survey);
    if (!sheet)
        return false;
    sheet->setParent(cover);
    m_open.replaceWith(sheet);
    m_engine = engine;
    sheet->present(cover);
    return true;
}

QQuickItem *TovuQuickPresenter::createIntroPage(QQmlEngine *engine, const TovuSurveyPage &page,
                                                std::function<void()> onStart)
{
    auto *model = new TovuIntroViewModel(page);
    model->onStart = std::move(onStart);
    return ::page(engine, QLatin1StringView("TovuIntroPage"), model);
}

QQuickItem *TovuQuickPresenter::createPage(QQmlEngine *engine, TovuPageRequest request, TovuUrlOpener *urlOpener)
{
    const TovuQuestion &q = request.question;
    const bool last = request.isLastQuestion;
    switch (q.type) {
    case TovuQuestionType::singleChoice:
        return questionPage(engine, QLatin1StringView("TovuSingleChoicePage"),
                            new TovuSingleChoiceQuestionViewModel(q, last), request);
    case TovuQuestionType::multipleChoice:
        return questionPage(engine, QLatin1StringView("TovuMultipleChoicePage"),
                            new TovuMultipleChoiceQuestionViewModel(q, last), request);
    case TovuQuestionType::dropdown:
        return questionPage(engine, QLatin1StringView("TovuDropdownPage"), new TovuDropdownQuestionViewModel(q),
                            request);
    case TovuQuestionType::singleTextBox:
    case TovuQuestionType::multipleTextBox:
        return questionPage(engine, QLatin1StringView("TovuTextBoxPage"), new TovuTextBoxQuestionViewModel(q), request);
    case TovuQuestionType::nps: {
        auto *model = new TovuNPSQuestionViewModel(q, last);
        model->onAdditionalAnswer = std::move(request.onAdditionalAnswer);
        return questionPage(engine, QLatin1StringView("TovuNPSPage"), model, request);
    }
    case TovuQuestionType::multiNps:
        return questionPage(engine, QLatin1StringView("TovuMultiNPSPage"), new TovuMultiNPSQuestionViewModel(q, last),
                            request);
    case TovuQuestionType::rating:
        return questionPage(engine, QLatin1StringView("TovuRatingPage"),
                            new TovuRatingQuestionViewModel(q, request.variant, request.maxRating, last), request);
    case TovuQuestionType::multiRating:
        return questionPage(engine, QLatin1StringView("TovuMultiRatingPage"),
                            new TovuMultiRatingQuestionViewModel(q, request.variant, last), request);
    case TovuQuestionType::thankYou:
        break;
    }
    return page(engine, QLatin1StringView("TovuThankYouPage"), new TovuThankYouViewModel(q, urlOpener));
}

void TovuQuickPresenter::showPage(QQuickItem *page)
{
    if (m_open.get())
        m_open.get()->setQuestionView(page);
    else
        delete page;
}

void TovuQuickPresenter::showIntro(const TovuSurveyPage &page, std::function<void()> onStart)
{
    if (!m_open.get() || !m_engine)
        return;
    m_open.get()->setProgress(0, 0);
    showPage(createIntroPage(m_engine, page, std::move(onStart)));
}

void TovuQuickPresenter::showQuestion(TovuPageRequest request)
{
    if (!m_open.get() || !m_engine)
        return;
    m_open.get()->setProgress(request.questionNumber, request.questionCount);
    showPage(createPage(m_engine, std::move(request), m_urlOpener));
}

void TovuQuickPresenter::dismiss()
{
    m_open.dismiss();
}

bool TovuQuickPresenter::isPresenting() const
{
    return m_open.isPresenting();
}

QObject *TovuQuickPresenter::sheet() const
{
    return m_open.get();
}

TovuQuickSheet *TovuQuickPresenter::quickSheet() const
{
    return m_open.get();
}

void TovuQuickPresenter::prepare(const TovuSurvey &survey, TovuPageRequest firstQuestion)
{
    // What is loaded (compiled components, type data, font files) is shared by the process.
    static bool prepared = false;
    QQuickWindow *window = firstQuickWindow();
    if (prepared || !window)
        return;
    prepared = true;
    // Answers from a page nobody sees must go nowhere.
    firstQuestion.onAnswer = nullptr;
    firstQuestion.onAdditionalAnswer = nullptr;
    const QPointer<QQmlEngine> engine = engineFor(window);
    // One file per turn of the event loop, so no turn holds the GUI thread long: the
    // sheet and each page the survey starts with are compiled, made once and thrown away.
    std::vector<std::function<QObject *()>> steps;
    steps.emplace_back([engine, survey] { return createSheet(engine, survey); });
    if (survey.introPage && survey.introPage->enabled)
        steps.emplace_back([engine, intro = *survey.introPage] { return createIntroPage(engine, intro, {}); });
    steps.emplace_back([engine, firstQuestion] { return createPage(engine, firstQuestion); });
    for (auto &step : steps) {
        TovuManagerSupport::later(m_open.context(), [engine, step = std::move(step)] {
            if (engine)
                delete step();
        });
    }
}
