// The tovu-devserver program itself: it announces its address once it
// accepts connections, answers, and exits cleanly on SIGTERM and SIGINT;
// bad input on the command line or in the config ends it with status 2.

#include "TovuDevServerTesting.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <optional>
#include <string>
#include <vector>

extern char **environ;

using namespace TovuDevServerTesting;
using nlohmann::json;

namespace {

// A child process with its standard output and error on pipes.
class Program
{
public:
    explicit Program(std::vector<std::string> arguments)
    {
        int out[2];
        int err[2];
        if (pipe2(out, O_CLOEXEC) != 0 || pipe2(err, O_CLOEXEC) != 0)
            return;
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, out[1], STDOUT_FILENO);
        posix_spawn_file_actions_adddup2(&actions, err[1], STDERR_FILENO);
        arguments.insert(arguments.begin(), TOVU_DEVSERVER_EXECUTABLE);
        std::vector<char *> argv;
        for (std::string &argument : arguments)
            argv.push_back(argument.data());
        argv.push_back(nullptr);
        if (posix_spawn(&m_pid, argv[0], &actions, nullptr, argv.data(), environ) != 0)
            m_pid = -1;
        posix_spawn_file_actions_destroy(&actions);
        close(out[1]);
        close(err[1]);
        m_out = out[0];
        m_err = err[0];
    }

    ~Program()
    {
        if (m_pid > 0 && !m_exitStatus) {
            kill(m_pid, SIGKILL);
            waitpid(m_pid, nullptr, 0);
        }
        if (m_out >= 0)
            close(m_out);
        if (m_err >= 0)
            close(m_err);
    }

    bool started() const { return m_pid > 0; }

    // One line of standard output, waiting at most `timeout`.
    std::optional<std::string> readLine(std::chrono::milliseconds timeout)
    {
        const auto deadline = std::chrono::steady_clock::now() + timeout;
        while (true) {
            if (const auto newline = m_outBuffer.find('\n'); newline != std::string::npos) {
                std::string line = m_outBuffer.substr(0, newline);
                m_outBuffer.erase(0, newline + 1);
                return line;
            }
            const auto left
                = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
            if (left.count() <= 0)
                return std::nullopt;
            pollfd fd{m_out, POLLIN, 0};
            if (poll(&fd, 1, static_cast<int>(left.count())) <= 0)
                return std::nullopt;
            char chunk[512];
            const ssize_t read = ::read(m_out, chunk, sizeof chunk);
            if (read <= 0)
                return std::nullopt;
            m_outBuffer.append(chunk, static_cast<std::size_t>(read));
        }
    }

    // The exit status, or nothing when it did not exit normally in time.
    std::optional<int> waitForExit(std::chrono::milliseconds timeout)
    {
        const auto deadline = std::chrono::steady_clock::now() + timeout;
        while (std::chrono::steady_clock::now() < deadline) {
            int status = 0;
            const pid_t done = waitpid(m_pid, &status, WNOHANG);
            if (done == m_pid) {
                m_exitStatus = status;
                if (!WIFEXITED(status))
                    return std::nullopt;
                return WEXITSTATUS(status);
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        return std::nullopt;
    }

    // Everything on standard error; call after the program exited.
    std::string errorOutput()
    {
        std::string text;
        char chunk[512];
        ssize_t read = 0;
        while ((read = ::read(m_err, chunk, sizeof chunk)) > 0)
            text.append(chunk, static_cast<std::size_t>(read));
        return text;
    }

    void signal(int number) const { kill(m_pid, number); }

private:
    pid_t m_pid = -1;
    int m_out = -1;
    int m_err = -1;
    std::string m_outBuffer;
    std::optional<int> m_exitStatus;
};

constexpr std::chrono::seconds patience{20};

void servesThenExitsCleanlyOn(int signalNumber)
{
    Program program({"--port", "0"});
    ASSERT_TRUE(program.started());
    const std::optional<std::string> line = program.readLine(patience);
    ASSERT_TRUE(line) << program.errorOutput();
    static constexpr std::string_view prefix = "listening on http://127.0.0.1:";
    ASSERT_TRUE(line->starts_with(prefix)) << *line;
    const int port = std::stoi(line->substr(prefix.size()));
    EXPECT_GT(port, 0);

    const auto result = client(line->substr(std::string_view("listening on ").size()))
                            ->Get("/api/v1/api-key/verify?zone=eu", {{"x-api-key", demoKey}});
    ASSERT_TRUE(result);
    EXPECT_EQ(result->status, 200);
    EXPECT_EQ(parseJson(result->body)["data"]["token"], "tovu-demo-token");

    program.signal(signalNumber);
    EXPECT_EQ(program.waitForExit(patience), 0);
    const std::string log = program.errorOutput();
    EXPECT_NE(log.find("GET /api/v1/api-key/verify -> 200"), std::string::npos) << log;
    // The temporary database folder is gone with the program.
    const auto stored = log.find("responses are stored in ");
    ASSERT_NE(stored, std::string::npos) << log;
    const std::string database
        = log.substr(stored + std::string_view("responses are stored in ").size(),
                     log.find('\n', stored) - stored - std::string_view("responses are stored in ").size());
    EXPECT_FALSE(std::filesystem::exists(std::filesystem::path(database).parent_path())) << database;
}

TEST(DevServerProgram, servesOnAnEphemeralPortAndExitsCleanlyOnSigterm)
{
    servesThenExitsCleanlyOn(SIGTERM);
}

TEST(DevServerProgram, exitsCleanlyOnSigint)
{
    servesThenExitsCleanlyOn(SIGINT);
}

TEST(DevServerProgram, badConfigOrArgumentsExitWithStatus2AndSayWhy)
{
    TemporaryFolder folder;
    const auto config = folder.write("config.json", R"({"keys": [{"key": "k", "tokenShape": "cookie"}]})");
    const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
        {{"--config", config.string()}, config.string() + ": keys[0].tokenShape: unknown shape \"cookie\""},
        {{"--config", (folder.path() / "absent.json").string()}, "absent.json: cannot be read"},
        {{"--data", (folder.path() / "absent").string()}, "not a folder"},
        {{"--port", "70000"}, "not a port number"},
        {{"--port"}, "--port needs a value"},
        {{"--verbose"}, "unknown argument \"--verbose\""},
    };
    for (const auto &[arguments, message] : cases) {
        Program program(arguments);
        ASSERT_TRUE(program.started());
        EXPECT_EQ(program.waitForExit(patience), 2) << message;
        const std::string output = program.errorOutput();
        EXPECT_NE(output.find(message), std::string::npos) << output;
        EXPECT_FALSE(program.readLine(std::chrono::milliseconds(0))) << "announced despite " << message;
    }
}

TEST(DevServerProgram, helpPrintsUsageAndExits0)
{
    Program program({"--help"});
    ASSERT_TRUE(program.started());
    const std::optional<std::string> line = program.readLine(patience);
    ASSERT_TRUE(line);
    EXPECT_TRUE(line->starts_with("usage: tovu-devserver")) << *line;
    EXPECT_EQ(program.waitForExit(patience), 0);
}

} // namespace
