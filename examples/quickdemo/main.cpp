// tovu-quickdemo: the Qt Quick twin of tovu-demo. A QML host app (a
// QGuiApplication, no widgets) that shows TovuKit's native surveys over an
// Item, against the local backend, tovu-devserver, started in this process.
//
//   tovu-quickdemo [--autoplay] [--survey ID] [--screenshots DIR] [--palette-png] [--offline-first]
//                  [--dark] [--theme host|survey|#RRGGBB] [--port N] [--verbose]
//
// With a display it opens its window; without one (or with --autoplay) it
// answers every page of the survey by itself, saves a screenshot of each,
// prints the response the backend stored and exits. Exit status 2 for bad
// arguments or an unknown survey, 1 when the backend cannot start, the window
// cannot be loaded or the autoplay fails.

#include "TovuDemoProgram.h"
#include "TovuDemoSession.h"
#include "TovuQuickDemo.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <QSGRendererInterface>

#include <memory>

int main(int argc, char **argv)
{
    const QString name = QStringLiteral("tovu-quickdemo");
    TovuDemoProgram program(name);
    if (const auto code = program.prepare(argc, argv))
        return *code;
    // Without a display there is no GPU to draw with either.
    if (program.isHeadless() && qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND"))
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication application(program.qtArgc(), program.qtArgv());
    QGuiApplication::setApplicationName(name);
    if (const auto code = program.started(QGuiApplication::arguments().mid(1)))
        return *code;

    auto session = std::make_unique<TovuDemoSession>(program.backend());
    auto demo = std::make_unique<TovuQuickDemo>(program.backend(), *session);
    if (!demo->window()) {
        TovuDemoProgram::printLine(stderr, name + QStringLiteral(": the window's QML could not be loaded"));
        return 1;
    }
    const int code = program.run(*demo, *session);
    // The window, its sheets and the manager go before the application object.
    demo.reset();
    session.reset();
    return code;
}
