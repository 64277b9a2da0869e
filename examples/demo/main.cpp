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

#include "TovuDemoAutoplay.h"
#include "TovuDemoBackend.h"
#include "TovuDemoControlPanel.h"
#include "TovuDemoOptions.h"
#include "TovuDemoSession.h"
#include "TovuDemoWindow.h"

#include <tovukit_io/viewmodel/TovuMotion.h>

#include <QApplication>
#include <QTimer>

#include <cstdio>
#include <memory>
#include <vector>

#include <unistd.h>

namespace {

void printLine(std::FILE *stream, const QString &line)
{
    std::fputs(line.toUtf8().constData(), stream);
    std::fputc('\n', stream);
    std::fflush(stream);
}

int usageError(const QString &message)
{
    printLine(stderr, QStringLiteral("tovu-demo: ") + message);
    return 2;
}

QtMessageHandler qtHandler = nullptr;

// Without a display Qt notes things that say nothing about the demo; the rest passes.
void headlessMessages(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (message.startsWith(u"This plugin does not support propagateSizeHints")
        || message.startsWith(u"QStandardPaths: XDG_RUNTIME_DIR not set"))
        return;
    qtHandler(type, context, message);
}

QString sampleList(const TovuDemoBackend &backend)
{
    QStringList stems;
    for (const TovuDemoSample &sample : backend.samples())
        stems << sample.stem;
    return stems.join(QStringLiteral(", "));
}

} // namespace

int main(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    const auto parsed = TovuDemoOptions::parse(arguments);
    if (!parsed)
        return usageError(parsed.error());
    const TovuDemoOptions &options = *parsed;
    if (options.help) {
        std::fputs(TovuDemoOptions::usage().toUtf8().constData(), stdout);
        return 0;
    }

    // Everything that can be refused is checked before Qt starts, so a
    // refusal is one line and nothing else.
    TovuDemoBackend backend(options.port);
    const TovuDemoSample *sample = backend.findSample(options.survey);
    if (!sample && backend.samples().empty()) {
        printLine(stderr, QStringLiteral("tovu-demo: no sample surveys to serve: %1").arg(backend.samplesError()));
        return 1;
    }
    if (!sample)
        return usageError(
            QStringLiteral("no sample survey \"%1\"; the samples are %2 (a file name, survey id "
                           "or collector id)")
                .arg(options.survey.isEmpty() ? QString::fromLatin1(TovuDemoBackend::defaultSample) : options.survey,
                     sampleList(backend)));
    if (!backend.start()) {
        printLine(stderr, QStringLiteral("tovu-demo: ") + backend.errorString());
        return 1;
    }

    const bool headless = TovuDemoOptions::isHeadless();
    if (headless && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (headless)
        qtHandler = qInstallMessageHandler(headlessMessages);
    const bool autoplay = options.autoplay || headless;

    std::vector<QByteArray> qtArgumentBytes;
    for (const QString &argument : options.qtArguments)
        qtArgumentBytes.push_back(argument.toLocal8Bit());
    std::vector<char *> qtArgv;
    for (QByteArray &bytes : qtArgumentBytes)
        qtArgv.push_back(bytes.data());
    qtArgv.push_back(nullptr);
    int qtArgc = static_cast<int>(qtArgumentBytes.size());
#ifdef TOVU_DEMO_WEB
    // The web survey panel: QtWebEngine shares GL contexts with the window,
    // and Chromium's sandbox refuses to start as root.
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    if (geteuid() == 0 && qEnvironmentVariableIsEmpty("QTWEBENGINE_DISABLE_SANDBOX"))
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
#endif
    QApplication application(qtArgc, qtArgv.data());
    QApplication::setApplicationName(QStringLiteral("tovu-demo"));
    QApplication::setStyle(QStringLiteral("Fusion"));
    // What Qt did not take is not an option of anybody's.
    if (const QStringList left = QApplication::arguments().mid(1); !left.isEmpty())
        return usageError(QStringLiteral("unknown option %1 (see --help)").arg(left.first()));

    if (headless && !options.autoplay)
        printLine(stdout,
                  QStringLiteral("tovu-demo: no display here, so the demo plays the survey by itself "
                                 "(as with --autoplay)"));
    printLine(stdout,
              QStringLiteral("tovu-demo: tovu-devserver serves %1 sample surveys at %2")
                  .arg(backend.samples().size())
                  .arg(backend.url()));

    auto session = std::make_unique<TovuDemoSession>(backend);
    auto window = std::make_unique<TovuDemoWindow>(backend, *session);
    window->setEcho(options.verbose);
    window->setLook(options.dark, options.theme,
                    options.theme == TovuDemoOptions::Theme::primaryColor ? options.primaryColor : QColor());

    std::unique_ptr<TovuDemoAutoplay> player;
    if (autoplay) {
        // Nobody watches a headless run: every animation jumps to its end.
        if (headless)
            TovuMotion::setDurationScale(0);
        TovuDemoAutoplay::Settings settings{
            .offlineFirst = options.offlineFirst,
            .screenshotsDir = options.screenshotsDir,
            .paletteScreenshots = options.paletteScreenshots,
            .pace = headless ? TovuDemoPagePlayer::briskPace : TovuDemoPagePlayer::humanPace,
            .timeoutMs = headless ? 60000 : 180000,
        };
        player = std::make_unique<TovuDemoAutoplay>(
            *window, *session, backend, *sample, settings, [](const QString &line) { printLine(stdout, line); },
            [](const QString &line) { printLine(stderr, line); });
        QObject::connect(player.get(), &TovuDemoAutoplay::finished, &application, [headless](int code) {
            // On screen, the end stays up a moment.
            QTimer::singleShot(headless ? 0 : 1500, qApp, [code] { QApplication::exit(code); });
        });
        window->show();
        QTimer::singleShot(0, player.get(), &TovuDemoAutoplay::start);
    } else {
        window->fitToScreen();
        window->show();
        window->configure(TovuDemoSession::Target::collector, sample->collectorId);
        if (options.offlineFirst)
            session->setOnline(false);
        printLine(stdout, QStringLiteral("tovu-demo: the window is open; close it to quit"));
    }
    const int code = QApplication::exec();
    // The window, its sheets and the manager go before the application object.
    player.reset();
    window.reset();
    session.reset();
    return code;
}
