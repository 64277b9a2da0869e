// The web survey beside the native sheet, in one run against an in-process
// tovu-devserver: the time from load() to the page's "Loaded" report, cold (the
// first page of the process, engine start included) and warm, and the resident
// memory of the whole web view process tree (this process and its
// QtWebEngineProcess children); next to them the native sheet's time to its
// first question and the memory it adds.

#include "TovuDevServer.h"
#include "TovuSessionBench.h"

#include <tovukit_io/core/TovuNativeSurveyManager.h>
#include <tovukit_io/core/TovuSurveyPresenter.h>
#include <tovukit_io/model/TovuLog.h>
#include <tovukit_io/network/TovuNetworkService.h>
#include <tovukit_io/platform/TovuManualPathMonitor.h>
#include <tovukit_io/platform/TovuMemoryKeyValueStore.h>
#include <tovukit_io/ui/TovuToasterView.h>
#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/web/TovuSurveyDelegate.h>
#include <tovukit_io/web/TovuSurveyView.h>

#include <QApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QVBoxLayout>
#include <QtWebEngineQuick/qtwebenginequickglobal.h>

#include <benchmark/benchmark.h>

#include <unistd.h>

#include <functional>
#include <memory>

namespace {

using TovuSessionBench::residentMiB;
using TovuSessionBench::spinUntil;

QByteArray commandOf(const QString &pid)
{
    QFile cmdline(QStringLiteral("/proc/%1/cmdline").arg(pid));
    return cmdline.open(QIODevice::ReadOnly) ? cmdline.readAll() : QByteArray();
}

// This process and every QtWebEngineProcess started for it: the engine's zygotes
// are its children and the renderers theirs, and all carry our pid's session.
double processTreeMiB()
{
    double total = residentMiB(QString::number(getpid()));
    const QString self = QString::number(getpid());
    for (const QString &pid : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
        if (pid.toLongLong() <= 0 || pid == self || !commandOf(pid).contains("QtWebEngineProcess"))
            continue;
        // Only those whose parent chain reaches us.
        QString parent = pid;
        for (int depth = 0; depth < 4 && parent != self && parent != u"1" && !parent.isEmpty(); ++depth) {
            QFile status(QStringLiteral("/proc/%1/status").arg(parent));
            parent.clear();
            if (!status.open(QIODevice::ReadOnly))
                break;
            for (const QByteArray &line : status.readAll().split('\n')) {
                if (line.startsWith("PPid:"))
                    parent = QString::fromLatin1(line.mid(5).trimmed());
            }
        }
        if (parent == self)
            total += residentMiB(pid);
    }
    return total;
}

class LoadWatcher : public TovuSurveyDelegate
{
public:
    void handleSurveyLoaded(const QVariantMap &response) override
    {
        if (response.contains(QStringLiteral("Loaded")))
            loaded = true;
    }
    bool loaded = false;
};

struct Rig {
    TovuDevServer server;
    std::string url = server.start();
    QWidget host;
    Rig()
    {
        TovuNetworkService::shared().setBaseURLOverride(url);
        host.resize(390, 844);
        host.show();
    }
    QString page() const { return QString::fromStdString(url + "/web/03ce355f-163d-420a-9980-f630e7af337c"); }
};

Rig *rig = nullptr;

// load() until the page reports "Loaded", in a new view each time. The first
// iteration of the process is the cold one.
void loadUntilLoaded(benchmark::State &state)
{
    LoadWatcher watcher;
    double treeMiB = 0;
    for (auto _ : state) {
        auto view = std::make_unique<TovuSurveyView>(&rig->host);
        view->resize(rig->host.size());
        view->show();
        view->setSurveyDelegate(&watcher);
        watcher.loaded = false;
        view->loadSurvey(rig->page());
        if (!spinUntil([&] { return watcher.loaded; }))
            state.SkipWithError("no \"Loaded\"");
        state.PauseTiming();
        treeMiB = processTreeMiB();
        view.reset();
        spinUntil([] { return false; }, 50); // the old page's process goes
        state.ResumeTiming();
    }
    state.counters["treeRssMB"] = treeMiB;
}
BENCHMARK(loadUntilLoaded)->Name("BM_WebLoad/cold")->Iterations(1)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(loadUntilLoaded)->Name("BM_WebLoad/warm")->Iterations(5)->Unit(benchmark::kMillisecond)->UseRealTime();

// The native sheet over the same host: presentSurvey() with the survey held until
// its first question is on screen, and what the process holds then.
void nativeFirstQuestion(benchmark::State &state)
{
    TovuManualPathMonitor monitor{TovuPathStatus::satisfied};
    TovuMemoryKeyValueStore store;
    TovuNetworkService service;
    service.setBaseURLOverride(rig->url);
    TovuNativeSurveyManager manager({&service, &store, &monitor, nullptr, nullptr, nullptr});
    TovuSurvey survey = TovuSessionBench::sampleSurvey("customer-satisfaction");
    survey.introPage.reset();
    double added = 0;
    for (auto _ : state) {
        manager.configure(survey);
        const double before = processTreeMiB();
        manager.presentSurvey(&rig->host);
        spinUntil([&] {
            const TovuToasterView *sheet = manager.toasterView();
            return sheet && sheet->contentStackView()->count() > 0
                && sheet->contentStackView()->itemAt(0)->widget()->isVisible();
        });
        state.PauseTiming();
        added = processTreeMiB() - before;
        manager.presenter()->dismiss();
        spinUntil([&] { return manager.toasterView() == nullptr; });
        state.ResumeTiming();
    }
    state.counters["rssAddedMB"] = added;
    state.counters["treeRssMB"] = processTreeMiB();
}
BENCHMARK(nativeFirstQuestion)
    ->Name("BM_NativeFirstQuestion")
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (geteuid() == 0 && qEnvironmentVariableIsEmpty("QTWEBENGINE_DISABLE_SANDBOX"))
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    QtWebEngineQuick::initialize();
    QApplication application(argc, argv);
    TovuMotion::setDurationScale(0);
    TovuLog::setHandler([](std::string_view) {});
    benchmark::Initialize(&argc, argv);
    Rig instance;
    if (instance.url.empty())
        return 1;
    rig = &instance;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    rig = nullptr;
    return 0;
}
