#pragma once

// A demo program run as `make demo` runs it on a machine without a display (no
// DISPLAY, no WAYLAND_DISPLAY, no Qt platform or Qt Quick renderer chosen), and
// what it printed.

#include <QProcess>
#include <QString>
#include <QStringList>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

struct TovuDemoRun {
    int exitCode = -1;
    QProcess::ExitStatus exitStatus = QProcess::CrashExit;
    QString out;
    QString err;

    static TovuDemoRun headless(const QString &program, const QStringList &arguments, const QString &workingDir = {})
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "QT_QUICK_BACKEND"})
            environment.remove(QString::fromLatin1(name));
        QProcess process;
        process.setProcessEnvironment(environment);
        if (!workingDir.isEmpty())
            process.setWorkingDirectory(workingDir);
        process.start(program, arguments);
        TovuDemoRun run;
        if (!process.waitForFinished(30000)) {
            process.kill();
            process.waitForFinished();
            ADD_FAILURE() << program.toStdString() << " did not finish";
        }
        run.exitCode = process.exitCode();
        run.exitStatus = process.exitStatus();
        run.out = QString::fromUtf8(process.readAllStandardOutput());
        run.err = QString::fromUtf8(process.readAllStandardError());
        return run;
    }

    static QStringList lines(const QString &text) { return text.split(u'\n', Qt::SkipEmptyParts); }

    /// The kind of every page played, from the line printed for each: "intro", "nps", …
    QString pageKinds() const
    {
        QStringList kinds;
        for (const QString &line : lines(out)) {
            if (line.startsWith(u' ') && line.contains(QStringLiteral("/11  ")))
                kinds << line.simplified().section(u' ', 1, 1);
        }
        return kinds.join(u' ');
    }

    /// The stored response printed as JSON between its heading and `name`'s next line.
    nlohmann::ordered_json printedResponse(const QString &name) const
    {
        const QStringList printed = lines(out);
        const qsizetype heading
            = printed.indexOf(name + QStringLiteral(": the backend stored this response (GET /dev/responses):"));
        EXPECT_GE(heading, 0) << out.toStdString();
        QStringList json;
        for (qsizetype i = heading + 1; heading >= 0 && i < printed.size() && !printed[i].startsWith(name + u':'); ++i)
            json << printed[i];
        return nlohmann::ordered_json::parse(json.join(u'\n').toStdString(), nullptr, false);
    }
};
