// What opening the survey sheet costs on the GUI thread: building it with
// the intro page and presenting it over a host window, and that plus
// rendering the first frame. One 120 Hz frame is 8.3 ms.

#include <tovukit_io/ui/TovuIntroView.h>
#include <tovukit_io/ui/TovuToasterView.h>
#include <tovukit_io/ui/kit/TovuBox.h>
#include <tovukit_io/viewmodel/TovuMotion.h>

#include <QApplication>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

namespace {

const TovuSurveyPage introPage{.enabled = true,
                               .content = "Thanks for shopping with Acme Store! Help us improve by answering a few "
                                          "quick questions about your recent order.",
                               .buttonText = "Start survey"};

TovuToasterView *openSheet(QWidget *host)
{
    auto *sheet = new TovuToasterView(std::nullopt);
    sheet->setQuestionView(new TovuIntroView(introPage));
    sheet->present(host);
    return sheet;
}

void BM_BuildAndPresentSheet(benchmark::State &state)
{
    QWidget host;
    host.resize(390, 844);
    host.show();
    for (auto _ : state) {
        TovuToasterView *sheet = openSheet(&host);
        benchmark::DoNotOptimize(sheet->containerView()->geometry());
        state.PauseTiming();
        delete sheet;
        state.ResumeTiming();
    }
}
BENCHMARK(BM_BuildAndPresentSheet)->Unit(benchmark::kMicrosecond);

void BM_SheetFirstFrame(benchmark::State &state)
{
    QWidget host;
    host.resize(390, 844);
    host.show();
    QImage frame(host.size() * 2, QImage::Format_ARGB32_Premultiplied);
    frame.setDevicePixelRatio(2);
    for (auto _ : state) {
        TovuToasterView *sheet = openSheet(&host);
        QPainter painter(&frame);
        host.render(&painter);
        painter.end();
        state.PauseTiming();
        delete sheet;
        state.ResumeTiming();
    }
}
BENCHMARK(BM_SheetFirstFrame)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    TovuMotion::setDurationScale(0); // the panel in place at once, as after its slide
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
