// tovu-demo: a host app that shows TovuKit's native surveys against the local
// backend, tovu-devserver, started in this process.
//
//   tovu-demo [--autoplay] [--survey ID] [--screenshots DIR] [--palette-png] [--offline-first]
//             [--dark] [--theme host|survey|#RRGGBB] [--port N] [--verbose]
//
// With a display it opens its window; without one (or with --autoplay) it
// answers every page of the survey by itself, saves a screenshot of each,
// prints the response the backend stored and exits. Exit status 2 for bad
// arguments or an unknown survey, 1 when the backend cannot start or the
// autoplay fails.

#include "TovuDemoProgram.h"
#include "TovuDemoSession.h"
#include "TovuDemoWindow.h"

#include <QApplication>

#include <memory>

#include <unistd.h>

int main(int argc, char **argv)
{
    TovuDemoProgram program(QStringLiteral("tovu-demo"));
    if (const auto code = program.prepare(argc, argv))
        return *code;
#ifdef TOVU_DEMO_WEB
    // The web survey panel: QtWebEngine shares GL contexts with the window,
    // and Chromium's sandbox refuses to start as root.
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    if (geteuid() == 0 && qEnvironmentVariableIsEmpty("QTWEBENGINE_DISABLE_SANDBOX"))
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
#endif
    QApplication application(program.qtArgc(), program.qtArgv());
    QApplication::setApplicationName(QStringLiteral("tovu-demo"));
    QApplication::setStyle(QStringLiteral("Fusion"));
    if (const auto code = program.started(QApplication::arguments().mid(1)))
        return *code;

    auto session = std::make_unique<TovuDemoSession>(program.backend());
    auto window = std::make_unique<TovuDemoWindow>(program.backend(), *session);
    const int code = program.run(*window, *session);
    // The window, its sheets and the manager go before the application object.
    window.reset();
    session.reset();
    return code;
}
