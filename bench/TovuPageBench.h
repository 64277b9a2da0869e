#pragma once

// What the page benchmarks share: building a page, laying it out at phone width and
// painting its first frame at 2x, on the offscreen platform with motion off.

#include <tovukit_io/viewmodel/TovuMotion.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QWidget>

#include <benchmark/benchmark.h>

#include <functional>
#include <memory>

namespace TovuPageBench {

// Build, lay out at 350 points wide and paint once into a 2x frame. The page sits in
// a parent, as in the sheet: a page of its own would be a window, which the offscreen
// platform greets with a warning on every resize.
inline void showPage(benchmark::State &state, const std::function<QWidget *()> &build)
{
    QImage frame(QSize(350, 1200) * 2, QImage::Format_ARGB32_Premultiplied);
    frame.setDevicePixelRatio(2);
    QWidget slot;
    for (auto _ : state) {
        std::unique_ptr<QWidget> page(build());
        page->setParent(&slot);
        page->resize(350, page->heightForWidth(350) > 0 ? page->heightForWidth(350) : page->sizeHint().height());
        QPainter painter(&frame);
        page->render(&painter);
        painter.end();
        state.PauseTiming();
        page.reset();
        state.ResumeTiming();
    }
}

} // namespace TovuPageBench

// A benchmark main with a QApplication on the offscreen platform.
#define TOVU_PAGE_BENCH_MAIN()                              \
    int main(int argc, char **argv)                         \
    {                                                       \
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) \
            qputenv("QT_QPA_PLATFORM", "offscreen");        \
        QApplication application(argc, argv);               \
        TovuMotion::setDurationScale(0);                    \
        benchmark::Initialize(&argc, argv);                 \
        benchmark::RunSpecifiedBenchmarks();                \
        benchmark::Shutdown();                              \
        return 0;                                           \
    }
