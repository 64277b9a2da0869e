// What the survey session costs the GUI thread, end to end through the manager
// with real sheets, a real store file and the local backend over loopback:
// making and configuring a manager, presenting a survey until its first page is
// painted, going from one page to the next for every page type, flushing a long
// offline queue (with the longest stall of the event loop meanwhile), and the
// memory a sheet with a large page adds. One 120 Hz frame is 8.3 ms.

#include "TovuDevServer.h"
#include "TovuSessionBench.h"
#include "TovuSessionSurveys.h"

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

#include <QApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QNetworkReply>
#include <QTemporaryDir>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include <benchmark/benchmark.h>

#include <malloc.h>
#include <unistd.h>

#include <algorithm>
#include <ctime>
#include <fstream>
#include <functional>
#include <memory>
#include <type_traits>

namespace {

using namespace TovuSessionSurveys;
using TovuSessionBench::idleFor;
using TovuSessionBench::residentMiB;
using TovuSessionBench::spinUntil;

constexpr const char *demoKey = "tovu-demo-key";
constexpr const char *demoToken = "tovu-demo-token";
constexpr const char *collectorId = "collector-customer-satisfaction";
constexpr QSize phoneSize{390, 844};

// Shows `window` and waits until the platform exposed it, so it paints.
void showWindow(QWidget &window)
{
    window.resize(phoneSize);
    window.show();
    spinUntil([&window] { return window.windowHandle() && window.windowHandle()->isExposed(); });
}

// Counts the events the application delivers.
class EventCounter : public QObject
{
public:
    qint64 count = 0;

protected:
    bool eventFilter(QObject *, QEvent *) override
    {
        ++count;
        return false;
    }
};

// What every benchmark works with, for the whole run: the local backend, a client
// pointed at it, a store file and a phone-sized host window.
class Rig
{
public:
    explicit Rig(TovuUrlOpener &opener)
        : m_url(m_server.start())
        , m_store(m_dir.path() + QStringLiteral("/kv.sqlite"))
        , m_opener(opener)
    {
        s_instance = this;
        qApp->installEventFilter(&m_delivered);
        service.configure(demoKey, "eu", TovuEnvironment::production);
        service.setBaseURLOverride(m_url);
        showWindow(host);
        showFrame();
    }
    ~Rig()
    {
        qApp->removeEventFilter(&m_delivered);
        s_instance = nullptr;
    }

    static Rig &instance() { return *s_instance; }
    bool isReady() const { return !m_url.empty(); }

    TovuNativeSurveyManager::Dependencies dependencies(TovuPathMonitor &monitor)
    {
        return {&service, &m_store, &monitor, nullptr, &m_opener, nullptr};
    }
    TovuSqliteKeyValueStore &store() { return m_store; }

    bool isNetworkIdle() const { return service.findChildren<QNetworkReply *>().isEmpty(); }

    // The turns the event loop takes until the next frame is in the window's
    // backing store: posted events round after round (a page put in the sheet is
    // shown, layouts run, the page left behind is deleted, the window repaints
    // what changed) until a round delivers none.
    void showFrame()
    {
        constexpr int maxRounds = 16;
        for (int round = 0; round < maxRounds; ++round) {
            const qint64 before = m_delivered.count;
            QCoreApplication::sendPostedEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            if (m_delivered.count == before)
                return;
        }
    }

    TovuNetworkService service;
    QWidget host;

private:
    static inline Rig *s_instance = nullptr;
    EventCounter m_delivered;
    TovuDevServer m_server;
    std::string m_url;
    QTemporaryDir m_dir;
    TovuSqliteKeyValueStore m_store;
    TovuUrlOpener &m_opener;
};

// A manager on the rig whose path stays satisfied: no flush starts by itself.
class Session
{
public:
    Session()
        : manager(std::make_unique<TovuNativeSurveyManager>(Rig::instance().dependencies(m_monitor)))
    {
        QCoreApplication::processEvents(); // the path's first report
    }
    ~Session() { closeSheet(); }

    QWidget *page() const
    {
        const TovuToasterView *sheet = manager->toasterView();
        if (!sheet || sheet->contentStackView()->count() == 0)
            return nullptr;
        return sheet->contentStackView()->itemAt(0)->widget();
    }

    // Presents `survey` and waits until its first page is on screen and every send has ended.
    QWidget *open(const TovuSurvey &survey, QWidget *host = &Rig::instance().host)
    {
        closeSheet();
        manager->configure(survey);
        manager->presentSurvey(host);
        spinUntil([this] {
            const QWidget *shown = page();
            return shown && shown->isVisible() && Rig::instance().isNetworkIdle();
        });
        return page();
    }

    void closeSheet()
    {
        if (!manager->toasterView())
            return;
        manager->presenter()->dismiss();
        spinUntil([this] { return manager->toasterView() == nullptr; });
    }

private:
    TovuManualPathMonitor m_monitor{TovuPathStatus::satisfied}; // made before the manager that watches it

public:
    std::unique_ptr<TovuNativeSurveyManager> manager;
};

// -- benchmarks --------------------------------------------------------------------------------------

// The memory a sheet with the largest page adds, painted into its host's backing
// store. The first sheet of a process also loads fonts, glyphs and styles, so that
// figure means something only in a process of its own; `besideAnother` puts the
// sheet up while another one is already up over a second window: the sheet alone.
void BM_SheetResidentMemory(benchmark::State &state, bool besideAnother)
{
    Rig &rig = Rig::instance();
    const TovuSurvey survey = multiRating10x10();
    QWidget otherHost;
    Session other;
    if (besideAnother) {
        showWindow(otherHost);
        other.open(survey, &otherHost);
        rig.showFrame();
    }
    Session session;
    double added = 0;
    double prepared = 0;
    for (auto _ : state) {
        state.PauseTiming();
        malloc_trim(0);
        const double configured = residentMiB();
        session.manager->configure(survey);
        idleFor(300); // the library prepares the first page
        malloc_trim(0);
        const double before = residentMiB();
        prepared = before - configured;
        state.ResumeTiming();
        session.manager->presentSurvey(&rig.host);
        rig.showFrame();
        state.PauseTiming();
        added = residentMiB() - before;
        session.closeSheet();
        state.ResumeTiming();
    }
    state.counters["rssAddedMB"] = added;
    state.counters["rssPreparedMB"] = prepared;
}
BENCHMARK_CAPTURE(BM_SheetResidentMemory, firstSheet, false)->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_SheetResidentMemory, besideAnother, true)->Iterations(1)->Unit(benchmark::kMillisecond);

// A manager made (as shared() makes it, but with a path monitor of its own) and
// configured for a collector: what a host's start-up pays. Verification and the
// pre-fetch then run over the network, outside the timing.
void BM_ConstructAndConfigure(benchmark::State &state)
{
    Rig &rig = Rig::instance();
    TovuManualPathMonitor monitor;
    for (auto _ : state) {
        auto manager = std::make_unique<TovuNativeSurveyManager>(rig.dependencies(monitor));
        manager->configure(demoKey, TovuCollectorId{collectorId}, "eu");
        state.PauseTiming();
        if (!spinUntil([&] { return manager->survey().has_value() && rig.isNetworkIdle(); }))
            state.SkipWithError("no pre-fetch");
        manager.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_ConstructAndConfigure)->Iterations(300)->Unit(benchmark::kMicrosecond);

// configure() again on a manager that is already there.
void BM_Configure(benchmark::State &state)
{
    Session session;
    for (auto _ : state) {
        session.manager->configure(demoKey, TovuCollectorId{collectorId}, "eu");
        state.PauseTiming();
        if (!spinUntil([&] { return session.manager->survey().has_value() && Rig::instance().isNetworkIdle(); }))
            state.SkipWithError("no pre-fetch");
        state.ResumeTiming();
    }
}
BENCHMARK(BM_Configure)->Iterations(300)->Unit(benchmark::kMicrosecond);

// Where the time of a frame goes, as counters in ms per iteration: `callMs` for
// the library call that builds the page and puts it in the sheet, `frameMs` for
// what the event loop then does until it is painted.
class FrameSplit
{
public:
    void call(const std::function<void()> &fn) { m_callNs += timed(fn); }
    void frame()
    {
        m_frameNs += timed([] { Rig::instance().showFrame(); });
    }
    void report(benchmark::State &state) const
    {
        state.counters["callMs"]
            = benchmark::Counter(static_cast<double>(m_callNs) / 1e6, benchmark::Counter::kAvgIterations);
        state.counters["frameMs"]
            = benchmark::Counter(static_cast<double>(m_frameNs) / 1e6, benchmark::Counter::kAvgIterations);
    }

private:
    static qint64 timed(const std::function<void()> &fn)
    {
        QElapsedTimer clock;
        clock.start();
        fn();
        return clock.nsecsElapsed();
    }

    qint64 m_callNs = 0;
    qint64 m_frameNs = 0;
};

// presentSurvey() with the survey held, until its first page is laid out and painted.
void BM_PresentSurvey(benchmark::State &state, TovuSurvey (*make)())
{
    Rig &rig = Rig::instance();
    Session session;
    const TovuSurvey survey = make();
    FrameSplit split;
    for (auto _ : state) {
        state.PauseTiming();
        session.closeSheet();
        session.manager->configure(survey);
        // A host configures well before it shows: the idle time in which the
        // library prepares the first page of the process passes once. Later
        // iterations run back to back (idle gaps would measure a cooled-down
        // CPU rather than the library; TOVU_IDLE_MS sets a gap for every one).
        static bool prepared = false;
        idleFor(prepared ? qEnvironmentVariableIntValue("TOVU_IDLE_MS") : 300);
        prepared = true;
        state.ResumeTiming();
        split.call([&] { session.manager->presentSurvey(&rig.host); });
        split.frame();
    }
    if (!session.page())
        state.SkipWithError("no page on screen");
    split.report(state);
}
// The intro page comes first.
BENCHMARK_CAPTURE(BM_PresentSurvey, customerSatisfaction, customerSatisfaction)->Unit(benchmark::kMicrosecond);
// The first question, an NPS page with score-dependent follow-ups.
BENCHMARK_CAPTURE(BM_PresentSurvey, customerSatisfactionNoIntro, customerSatisfactionWithoutIntro)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_PresentSurvey, multiRating10x10, multiRating10x10)->Unit(benchmark::kMicrosecond);

// From the tap that hands a page's answer on to the next page laid out and
// painted: the answer recorded, the page built and put in the sheet, the old
// page deleted. Into the thank-you page this includes ending the session
// (the response assembled, its send and a new key verification started).
void BM_PageTransition(benchmark::State &state, const PageKind &kind, bool toThankYou)
{
    Session session;
    const TovuSurvey survey = transitionSurvey(kind, toThankYou);
    FrameSplit split;
    for (auto _ : state) {
        state.PauseTiming();
        QWidget *first = session.open(survey);
        kind.choose(first);
        QCoreApplication::processEvents();
        state.ResumeTiming();
        split.call([&] { kind.submit(first); });
        split.frame();
        state.PauseTiming();
        const QWidget *shown = session.page();
        const bool advanced = session.manager->currentQuestionIndex() == 1 && shown && shown->isVisible();
        state.ResumeTiming();
        if (!advanced) {
            state.SkipWithError("the page did not hand its answer on");
            break;
        }
    }
    split.report(state);
}
BENCHMARK_CAPTURE(BM_PageTransition, singleChoice, singleChoice, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_PageTransition, multipleChoice, multipleChoice, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_PageTransition, dropdown, dropdown, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_PageTransition, singleTextBox, singleTextBox, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_PageTransition, multipleTextBox, multipleTextBox, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_PageTransition, nps, nps, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_PageTransition, multiNps, multiNps, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_PageTransition, ratingStars, ratingStars, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_PageTransition, ratingEmoji, ratingEmoji, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_PageTransition, multiRating, multiRating, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(BM_PageTransition, thankYou, singleChoice, true)->Unit(benchmark::kMicrosecond);

// The longest the event loop went without turning, from start() to the last tick():
// a 1 ms timer that fires late by more than its interval was held up that long.
// Beside it, the most GUI-thread CPU time spent between two ticks: what the thread
// itself did, without the time the system gave other processes.
class StallMeter
{
public:
    StallMeter()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        m_timer.setInterval(1);
        QObject::connect(&m_timer, &QTimer::timeout, [this] { tick(); });
    }

    void start()
    {
        m_clock.start();
        m_last = {0, threadCpuNs()};
        m_timer.start();
    }
    void tick()
    {
        const Reading now{m_clock.nsecsElapsed(), threadCpuNs()};
        m_worst.wall = std::max(m_worst.wall, now.wall - m_last.wall);
        m_worst.cpu = std::max(m_worst.cpu, now.cpu - m_last.cpu);
        m_last = now;
    }
    double maxStallMs() const { return std::max(0.0, static_cast<double>(m_worst.wall) / 1e6 - 1.0); }
    double maxBusyMs() const { return static_cast<double>(m_worst.cpu) / 1e6; }

private:
    struct Reading {
        qint64 wall = 0;
        qint64 cpu = 0;
    };

    static qint64 threadCpuNs()
    {
        timespec now{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
        return static_cast<qint64>(now.tv_sec) * 1'000'000'000 + now.tv_nsec;
    }

    QTimer m_timer;
    QElapsedTimer m_clock;
    Reading m_last;
    Reading m_worst;
};

// flushQueue() with N responses queued in the store file, until its completion:
// every response sent to the local backend and the emptied queue stored.
void BM_FlushQueue(benchmark::State &state)
{
    Rig &rig = Rig::instance();
    const auto queued = TovuSessionBench::sampleResponses(static_cast<std::size_t>(state.range(0)));
    const QByteArray blob = QByteArray::fromStdString(tovuEncode(queued).value_or("[]"));
    Session session;
    double worstStall = 0;
    double worstBusy = 0;
    for (auto _ : state) {
        state.PauseTiming();
        rig.store().setData(TovuNativeSurveyManager::queueKey, blob);
        rig.service.setBearerToken(demoToken);
        state.ResumeTiming();
        StallMeter meter;
        std::optional<bool> allSent;
        meter.start();
        session.manager->flushQueue([&](bool ok) {
            meter.tick();
            allSent = ok;
        });
        spinUntil([&] { return allSent.has_value(); }, 60000);
        state.PauseTiming();
        worstStall = std::max(worstStall, meter.maxStallMs());
        worstBusy = std::max(worstBusy, meter.maxBusyMs());
        if (allSent != true)
            state.SkipWithError("a response was not sent");
        spinUntil([&] { return rig.isNetworkIdle(); });
        state.ResumeTiming();
    }
    state.counters["maxStallMs"] = worstStall;
    state.counters["maxBusyMs"] = worstBusy;
    state.counters["queuedBytes"] = static_cast<double>(blob.size());
}
BENCHMARK(BM_FlushQueue)->Arg(1000)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qEnvironmentVariableIsEmpty("QT_SCALE_FACTOR"))
        qputenv("QT_SCALE_FACTOR", "2"); // frames painted at a phone's 2x
    QApplication application(argc, argv);
    TovuMotion::setDurationScale(0); // the panel and pages in place at once, as after their motion
    TovuLog::setHandler([](std::string_view) {}); // console lines would measure the terminal
    // Thank-you redirects fire 2.5 s after their page, whatever became of it.
    static TovuRecordingUrlOpener opener;
    TovuUrlOpener::setDefault(&opener);
    benchmark::Initialize(&argc, argv);
    Rig rig(opener);
    if (!rig.isReady())
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
