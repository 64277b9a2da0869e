// The Qt Quick front end beside the Qt Widgets one, in the same run and on the
// same surveys, through the manager: presentSurvey with the survey held until
// the first page is rendered (the first of the process, then later ones), a page
// transition for each page type, and the memory a sheet adds. Both render with
// the CPU (Qt Quick's software renderer), as on a board without a GPU; a frame
// is a grab of the host window at 2×. One 120 Hz frame is 8.3 ms.

#include "TovuSessionBench.h"

#include <tovukit_io/core/TovuNativeSurveyManager.h>
#include <tovukit_io/core/TovuSurveyPresenter.h>
#include <tovukit_io/model/TovuLog.h>
#include <tovukit_io/platform/TovuManualPathMonitor.h>
#include <tovukit_io/platform/TovuMemoryKeyValueStore.h>
#include <tovukit_io/platform/TovuUrlOpener.h>
#include <tovukit_io/quick/TovuQuickSheet.h>
#include <tovukit_io/ui/TovuToasterView.h>
#include <tovukit_io/viewmodel/TovuMotion.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QQuickWindow>
#include <QTest>

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <memory>

namespace {

using TovuSessionBench::residentMiB;
using TovuSessionBench::spinUntil;

constexpr QSize phoneSize{390, 844};

enum class FrontEnd { widgets, quick };

// One host of each kind, shown, and a manager whose network is never asked.
class Hosts
{
public:
    Hosts()
    {
        widget.resize(phoneSize);
        widget.show();
        window.resize(phoneSize);
        window.show();
        spinUntil([this] { return widget.windowHandle() && widget.windowHandle()->isExposed() && window.isExposed(); });
    }

    QObject *host(FrontEnd frontEnd)
    {
        return frontEnd == FrontEnd::widgets ? static_cast<QObject *>(&widget) : &window;
    }

    // A whole frame of the host with what it shows now, rendered to an image.
    QImage frame(FrontEnd frontEnd)
    {
        QCoreApplication::sendPostedEvents();
        return frontEnd == FrontEnd::widgets ? widget.grab().toImage() : window.grabWindow();
    }

    QWidget widget;
    QQuickWindow window;
};

Hosts *hosts = nullptr;

class Session
{
public:
    Session()
        : manager(TovuNativeSurveyManager::Dependencies{nullptr, &store, &monitor, nullptr, &opener, nullptr})
    { }

    bool isShowing() const { return manager.currentSheet() != nullptr; }

    void close()
    {
        if (!isShowing())
            return;
        manager.presenter()->dismiss();
        spinUntil([this] { return !isShowing(); });
    }

    TovuMemoryKeyValueStore store;
    TovuManualPathMonitor monitor{TovuPathStatus::satisfied};
    TovuRecordingUrlOpener opener;
    TovuNativeSurveyManager manager;
};

// `options` options (a grid's rows), and `columns` columns with labels for a grid.
TovuQuestion question(TovuQuestionType type, int options = 4, int columns = 0)
{
    TovuQuestion q{.id = "q",
                   .type = type,
                   .title = "How did you hear about Fresh Basket?",
                   .isRequired = true,
                   .options = std::vector<TovuChoice>{}};
    for (int i = 0; i < options; ++i)
        q.options->push_back({.id = "o" + std::to_string(i), .text = "Option number " + std::to_string(i + 1)});
    if (columns > 0) {
        q.columns = std::vector<TovuChoice>{};
        for (int i = 0; i < columns; ++i)
            q.columns->push_back({.id = "c" + std::to_string(i), .text = "Level " + std::to_string(i + 1)});
        q.showColLabels = true;
    }
    return q;
}

TovuSurvey surveyOf(std::vector<TovuQuestion> questions)
{
    TovuSurvey survey{.id = "bench", .name = "Bench", .questions = std::move(questions)};
    survey.questions.push_back({.id = "thank_you_auto", .type = TovuQuestionType::thankYou, .title = "Thanks"});
    return survey;
}

// presentSurvey with the survey held, until the first page is in a rendered frame.
// The host is idle a moment first, as an app is between start-up and its survey,
// so the presenters can prepare the first page.
void presentFirstPage(benchmark::State &state, FrontEnd frontEnd)
{
    Session session;
    session.manager.configure(surveyOf({question(TovuQuestionType::singleChoice)}));
    TovuSessionBench::idleFor(300);
    for (auto _ : state) {
        session.manager.presentSurvey(hosts->host(frontEnd));
        benchmark::DoNotOptimize(hosts->frame(frontEnd));
        state.PauseTiming();
        session.close();
        state.ResumeTiming();
    }
}

// From one page to the next, `to`, until it is in a rendered frame; with `extras`, as a
// respondent who needs them sees it: the progress indicator on and the focus ring showing.
void pageTransition(benchmark::State &state, FrontEnd frontEnd, TovuQuestion to, TovuRatingVariant variant,
                    bool extras = false)
{
    Session session;
    session.manager.configureTheme(TovuAppTheme{.showsProgress = extras});
    session.manager.configure(surveyOf({question(TovuQuestionType::singleChoice), std::move(to)}));
    TovuSurveyPresenter *presenter = session.manager.presenter();
    TovuSurvey survey = *session.manager.survey();
    session.manager.presentSurvey(hosts->host(frontEnd));
    hosts->frame(frontEnd);
    if (extras) // a key press: the next page's first control shows its ring
        QTest::keyClick(frontEnd == FrontEnd::widgets ? hosts->widget.windowHandle() : &hosts->window, Qt::Key_Tab);
    for (auto _ : state) {
        presenter->showQuestion(TovuPageRequest{.question = survey.questions[1], .variant = variant});
        benchmark::DoNotOptimize(hosts->frame(frontEnd));
        state.PauseTiming();
        presenter->showQuestion(TovuPageRequest{.question = survey.questions[0]});
        hosts->frame(frontEnd);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        state.ResumeTiming();
    }
    session.close();
}

// The resident memory a sheet with a 30-option page adds once it is rendered.
void sheetMemory(benchmark::State &state, FrontEnd frontEnd)
{
    Session session;
    session.manager.configure(surveyOf({question(TovuQuestionType::singleChoice, 30)}));
    double added = 0;
    for (auto _ : state) {
        malloc_trim(0);
        const double before = residentMiB();
        session.manager.presentSurvey(hosts->host(frontEnd));
        hosts->frame(frontEnd);
        added = residentMiB() - before;
        state.PauseTiming();
        session.close();
        state.ResumeTiming();
    }
    state.counters["added_MiB"] = added;
}

void registerAll()
{
    using Type = TovuQuestionType;
    for (const auto &[name, frontEnd] :
         {std::pair{"widgets", FrontEnd::widgets}, std::pair{"quick", FrontEnd::quick}}) {
        const std::string suffix = std::string("/") + name;
        // The first presentation of the process pays for loading: measured once, before the others.
        benchmark::RegisterBenchmark(("BM_FirstPageOfProcess" + suffix).c_str(), presentFirstPage, frontEnd)
            ->Iterations(1)
            ->Unit(benchmark::kMillisecond);
    }
    for (const auto &[name, frontEnd] :
         {std::pair{"widgets", FrontEnd::widgets}, std::pair{"quick", FrontEnd::quick}}) {
        const std::string suffix = std::string("/") + name;
        benchmark::RegisterBenchmark(("BM_FirstPage" + suffix).c_str(), presentFirstPage, frontEnd)
            ->Unit(benchmark::kMillisecond);
        const struct {
            const char *name;
            TovuQuestion question;
            TovuRatingVariant variant = TovuRatingVariant::star;
        } pages[] = {
            {"single", question(Type::singleChoice)},
            {"multiple", question(Type::multipleChoice)},
            {"dropdown", question(Type::dropdown)},
            {"text", question(Type::multipleTextBox)},
            {"nps", question(Type::nps)},
            {"multiNps10", question(Type::multiNps, 10)},
            {"ratingStars", question(Type::rating)},
            {"ratingEmoji", question(Type::rating), TovuRatingVariant::emoji},
            {"ratingNumbers", question(Type::rating), TovuRatingVariant::numeric},
            {"multiRating10x10", question(Type::multiRating, 10, 10)},
            {"multiRatingEmoji10x10", question(Type::multiRating, 10, 10), TovuRatingVariant::emoji},
            {"thankYou", question(Type::thankYou)},
        };
        for (const auto &page : pages) {
            for (const bool extras : {false, true}) {
                const std::string benchmarkName
                    = "BM_PageTransition/" + std::string(page.name) + suffix + (extras ? "/progressAndKeys" : "");
                benchmark::RegisterBenchmark(benchmarkName.c_str(), pageTransition, frontEnd, page.question,
                                             page.variant, extras)
                    ->Unit(benchmark::kMillisecond);
            }
        }
        benchmark::RegisterBenchmark(("BM_SheetMemory" + suffix).c_str(), sheetMemory, frontEnd)->Iterations(3);
    }
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", "2");
    qputenv("QT_QUICK_BACKEND", "software");
    QApplication application(argc, argv);
    TovuMotion::setDurationScale(0); // the first frame of a page, not its slide
    TovuLog::setHandler([](std::string_view) {});
    Hosts shown;
    hosts = &shown;
    registerAll();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    hosts = nullptr;
    return 0;
}
