#include "TovuDemoProgram.h"

#include "TovuDemoActivity.h"
#include "TovuDemoAutoplay.h"
#include "TovuDemoBackend.h"
#include "TovuDemoLook.h"
#include "TovuDemoSession.h"
#include "TovuDemoStage.h"

#include <tovukit_io/viewmodel/TovuMotion.h>

#include <QCoreApplication>
#include <QTimer>

#include <cstdio>

namespace {

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

TovuDemoProgram::TovuDemoProgram(QString name)
    : m_name(std::move(name))
{ }

TovuDemoProgram::~TovuDemoProgram() = default;

void TovuDemoProgram::printLine(std::FILE *stream, const QString &line)
{
    std::fputs(line.toUtf8().constData(), stream);
    std::fputc('\n', stream);
    std::fflush(stream);
}

int TovuDemoProgram::usageError(const QString &message) const
{
    printLine(stderr, m_name + QStringLiteral(": ") + message);
    return 2;
}

std::optional<int> TovuDemoProgram::prepare(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    auto parsed = TovuDemoOptions::parse(arguments, m_name);
    if (!parsed)
        return usageError(parsed.error());
    m_options = std::move(*parsed);
    if (m_options.help) {
        std::fputs(TovuDemoOptions::usage(m_name).toUtf8().constData(), stdout);
        return 0;
    }

    // Everything that can be refused is checked before Qt starts, so a
    // refusal is one line and nothing else.
    m_backend = std::make_unique<TovuDemoBackend>(m_options.port);
    if (const auto refused = checkSample())
        return refused;
    if (!m_backend->start()) {
        printLine(stderr, m_name + QStringLiteral(": ") + m_backend->errorString());
        return 1;
    }

    m_headless = TovuDemoOptions::isHeadless();
    if (m_headless && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    if (m_headless)
        qtHandler = qInstallMessageHandler(headlessMessages);
    prepareQtArguments();
    return std::nullopt;
}

std::optional<int> TovuDemoProgram::checkSample()
{
    m_sample = m_backend->findSample(m_options.survey);
    if (m_sample)
        return std::nullopt;
    if (m_backend->samples().empty()) {
        printLine(stderr, m_name + QStringLiteral(": no sample surveys to serve: %1").arg(m_backend->samplesError()));
        return 1;
    }
    return usageError(
        QStringLiteral("no sample survey \"%1\"; the samples are %2 (a file name, survey id or collector id)")
            .arg(m_options.survey.isEmpty() ? QString::fromLatin1(TovuDemoBackend::defaultSample) : m_options.survey,
                 sampleList(*m_backend)));
}

void TovuDemoProgram::prepareQtArguments()
{
    for (const QString &argument : m_options.qtArguments)
        m_qtArgumentBytes.push_back(argument.toLocal8Bit());
    for (QByteArray &bytes : m_qtArgumentBytes)
        m_qtArgv.push_back(bytes.data());
    m_qtArgv.push_back(nullptr);
    m_qtArgc = static_cast<int>(m_qtArgumentBytes.size());
}

std::optional<int> TovuDemoProgram::started(const QStringList &leftArguments)
{
    // What Qt did not take is not an option of anybody's.
    if (!leftArguments.isEmpty())
        return usageError(QStringLiteral("unknown option %1 (see --help)").arg(leftArguments.first()));
    if (m_headless && !m_options.autoplay)
        printLine(stdout,
                  m_name
                      + QStringLiteral(": no display here, so the demo plays the survey by itself "
                                       "(as with --autoplay)"));
    printLine(stdout,
              m_name
                  + QStringLiteral(": tovu-devserver serves %1 sample surveys at %2")
                        .arg(m_backend->samples().size())
                        .arg(m_backend->url()));
    return std::nullopt;
}

int TovuDemoProgram::run(TovuDemoStage &stage, TovuDemoSession &session)
{
    stage.activity().setEcho(m_options.verbose);
    TovuDemoLook::setShowsProgress(session.manager(), m_options.progress);
    stage.setLook(m_options.dark, m_options.theme,
                  m_options.theme == TovuDemoOptions::Theme::primaryColor ? m_options.primaryColor : QColor());
    std::unique_ptr<TovuDemoAutoplay> player;
    if (m_options.autoplay || m_headless) {
        // Nobody watches a headless run: every animation jumps to its end.
        if (m_headless)
            TovuMotion::setDurationScale(0);
        TovuDemoAutoplay::Settings settings{
            .offlineFirst = m_options.offlineFirst,
            .screenshotsDir = m_options.screenshotsDir,
            .paletteScreenshots = m_options.paletteScreenshots,
            .pace = m_headless ? TovuDemoPagePlayer::briskPace : TovuDemoPagePlayer::humanPace,
            .timeoutMs = m_headless ? 60000 : 180000,
            .program = m_name,
        };
        player = std::make_unique<TovuDemoAutoplay>(
            stage, session, *m_backend, *m_sample, settings, [](const QString &line) { printLine(stdout, line); },
            [](const QString &line) { printLine(stderr, line); });
        QObject::connect(player.get(), &TovuDemoAutoplay::finished, QCoreApplication::instance(),
                         [headless = m_headless](int code) {
                             // On screen, the end stays up a moment.
                             QTimer::singleShot(headless ? 0 : 1500, QCoreApplication::instance(),
                                                [code] { QCoreApplication::exit(code); });
                         });
        stage.open(false);
        QTimer::singleShot(0, player.get(), &TovuDemoAutoplay::start);
    } else {
        stage.open(true);
        stage.configure(TovuDemoSession::Target::collector, m_sample->collectorId);
        if (m_options.offlineFirst)
            session.setOnline(false);
        printLine(stdout, m_name + QStringLiteral(": the window is open; close it to quit"));
    }
    const int code = QCoreApplication::exec();
    // The autoplay goes before the window, which the caller removes before the application object.
    player.reset();
    return code;
}
