#pragma once

#include "TovuDemoOptions.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <cstdio>
#include <memory>
#include <optional>
#include <vector>

class TovuDemoBackend;
class TovuDemoSession;
class TovuDemoStage;
struct TovuDemoSample;

/// What a demo program does around its window, whichever toolkit draws it:
/// reads the command line, refuses what it cannot do before Qt starts (one
/// line on standard error, exit status 2 for arguments, 1 for the backend),
/// starts the backend, and then either opens the window for a person or plays
/// the survey by itself until it exits.
///
/// \code
/// TovuDemoProgram program(QStringLiteral("tovu-demo"));
/// if (const auto code = program.prepare(argc, argv))
///     return *code;
/// QApplication application(program.qtArgc(), program.qtArgv());
/// if (const auto code = program.started(QApplication::arguments().mid(1)))
///     return *code;
/// TovuDemoSession session(program.backend());
/// TovuDemoWindow window(program.backend(), session);
/// return program.run(window, session);
/// \endcode
class TovuDemoProgram
{
public:
    explicit TovuDemoProgram(QString name);
    ~TovuDemoProgram();

    /// Reads `argv` and starts the backend; an exit status when the program
    /// ends here (--help, or a refusal).
    std::optional<int> prepare(int argc, char **argv);
    /// The arguments for the application object: the options Qt takes.
    int &qtArgc() { return m_qtArgc; }
    char **qtArgv() { return m_qtArgv.data(); }
    /// After the application object is made, with the arguments it left: refuses
    /// them (exit status 2), or says where the backend serves.
    std::optional<int> started(const QStringList &leftArguments);
    /// Gives `stage` the look and the echo the options ask for and opens it for a
    /// person, or plays the survey on it, until the program is to end; the exit status.
    int run(TovuDemoStage &stage, TovuDemoSession &session);

    const TovuDemoOptions &options() const { return m_options; }
    TovuDemoBackend &backend() const { return *m_backend; }
    /// No display: the program plays by itself and nothing needs to move slowly.
    bool isHeadless() const { return m_headless; }

    /// Writes `line` and a newline to `stream` at once.
    static void printLine(std::FILE *stream, const QString &line);

private:
    int usageError(const QString &message) const;
    std::optional<int> checkSample();
    void prepareQtArguments();

    QString m_name;
    TovuDemoOptions m_options;
    std::unique_ptr<TovuDemoBackend> m_backend;
    const TovuDemoSample *m_sample = nullptr;
    bool m_headless = false;
    std::vector<QByteArray> m_qtArgumentBytes;
    std::vector<char *> m_qtArgv;
    int m_qtArgc = 0;
};
