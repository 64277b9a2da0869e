// The tovu-demo program: without a display it plays the survey by itself,
// prints one line per page and the stored response, saves its screenshots and
// exits 0; a bad option, an unknown survey or a port in use is one line on
// standard error and a non-zero exit, never a crash.

#include "TovuDemoRun.h"
#include "TovuDevServer.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

TovuDemoRun runDemo(const QStringList &arguments, const QString &workingDir = {})
{
    return TovuDemoRun::headless(QStringLiteral(TOVU_DEMO_EXECUTABLE), arguments, workingDir);
}

QStringList lines(const QString &text)
{
    return TovuDemoRun::lines(text);
}

} // namespace

TEST(DemoProgram, WithoutADisplayPlaysTheEveryTypeSurveyAndPrintsWhatWasStored)
{
    QTemporaryDir folder;
    ASSERT_TRUE(folder.isValid());
    const TovuDemoRun run = runDemo({}, folder.path());
    ASSERT_EQ(run.exitStatus, QProcess::NormalExit) << run.err.toStdString();
    ASSERT_EQ(run.exitCode, 0) << run.out.toStdString() << run.err.toStdString();
    EXPECT_TRUE(run.out.startsWith(QStringLiteral("tovu-demo: no display here"))) << run.out.toStdString();
    EXPECT_TRUE(run.out.contains(QStringLiteral("\"Fresh Basket delivery feedback\" (every-question-type)")));

    // One line per page, in order.
    EXPECT_EQ(run.pageKinds().toStdString(),
              "intro single-choice multiple-choice dropdown rating multi-rating nps "
              "multi-nps single-text-box multiple-text-box thank-you");

    // The stored response, printed as JSON between its heading and the next line of the demo.
    const auto stored = run.printedResponse(QStringLiteral("tovu-demo"));
    ASSERT_TRUE(stored.is_object()) << run.out.toStdString();
    EXPECT_EQ(stored["payload"]["collector_id"], "collector-every-question-type");
    // Nine pages and the NPS page's follow-up.
    EXPECT_EQ(stored["payload"]["responses"][0]["questions"].size(), 10u);

    // The screenshots, in the default folder of the working directory.
    const QDir shots(QDir(folder.path()).filePath(QStringLiteral("demo-screenshots")));
    EXPECT_EQ(shots.entryList({QStringLiteral("*.png")}, QDir::Files).size(), 12);
    // Nothing but the demo's own lines on standard error: it has none.
    EXPECT_TRUE(run.err.isEmpty()) << run.err.toStdString();
}

TEST(DemoProgram, RefusalsAreOneLineAndANonZeroExit)
{
    TovuDevServer occupant;
    ASSERT_FALSE(occupant.start().empty()) << occupant.errorString();
    const QString busyPort = QString::number(occupant.port());

    const struct {
        QStringList arguments;
        int exitCode;
        QString line;
    } cases[] = {
        {{QStringLiteral("--bogus")}, 2, QStringLiteral("tovu-demo: unknown option --bogus (see --help)")},
        {{QStringLiteral("--survey")}, 2, QStringLiteral("tovu-demo: --survey needs a value")},
        {{QStringLiteral("--autoplay=yes")}, 2, QStringLiteral("tovu-demo: --autoplay takes no value")},
        {{QStringLiteral("stray")}, 2, QStringLiteral("tovu-demo: unexpected argument \"stray\" (see --help)")},
        {{QStringLiteral("--port"), QStringLiteral("http")},
         2,
         QStringLiteral("tovu-demo: --port: \"http\" is not a port number (0 to 65535)")},
        {{QStringLiteral("--theme"), QStringLiteral("purple")},
         2,
         QStringLiteral("tovu-demo: --theme: \"purple\" is not host, survey or a colour such as #7C3AED")},
        {{QStringLiteral("--survey"), QStringLiteral("nope")},
         2,
         QStringLiteral("tovu-demo: no sample survey \"nope\"; the samples are customer-satisfaction, "
                        "every-question-type, onboarding, product-feedback (a file name, survey id or collector id)")},
        {{QStringLiteral("--port"), busyPort},
         1,
         QStringLiteral("tovu-demo: cannot listen on 127.0.0.1:%1 (is another program using it? --port 0 picks a "
                        "free port)")
             .arg(busyPort)},
        {{QStringLiteral("-notanoption")}, 2, QStringLiteral("tovu-demo: unknown option -notanoption (see --help)")},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.arguments.join(u' ').toStdString());
        const TovuDemoRun run = runDemo(c.arguments);
        EXPECT_EQ(run.exitStatus, QProcess::NormalExit);
        EXPECT_EQ(run.exitCode, c.exitCode);
        EXPECT_EQ(lines(run.err), QStringList{c.line});
        EXPECT_TRUE(run.out.isEmpty()) << run.out.toStdString();
    }

    const TovuDemoRun help = runDemo({QStringLiteral("--help")});
    EXPECT_EQ(help.exitCode, 0);
    EXPECT_TRUE(help.out.startsWith(QStringLiteral("usage: tovu-demo"))) << help.out.toStdString();
}
