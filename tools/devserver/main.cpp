// tovu-devserver: the backend API on 127.0.0.1, for development and demos.
//
//   tovu-devserver [--port N] [--data DIR] [--db FILE] [--config FILE] [--quiet]
//
// Prints "listening on http://127.0.0.1:PORT" once it accepts connections and
// runs until SIGINT or SIGTERM. Exit status 2 for bad arguments, data, config
// or database; 1 when the port cannot be bound.

#include "TovuDevServer.h"

#include <pthread.h>
#include <signal.h>

#include <charconv>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace {

void printUsage(std::ostream &out)
{
    out << "usage: tovu-devserver [--port N] [--data DIR] [--db FILE] [--config FILE] [--quiet]\n"
           "Serves the TovuKit backend API on 127.0.0.1 until interrupted.\n"
           "  --port N       port to listen on; 0 (the default) picks a free one\n"
           "  --data DIR     survey documents, one *.json each (default: the bundled samples)\n"
           "  --db FILE      SQLite file for submitted responses (default: a fresh temporary file)\n"
           "  --config FILE  API keys and collectors as JSON (default: key \"tovu-demo-key\",\n"
           "                 one collector \"collector-<file stem>\" per survey document)\n"
           "  --quiet        no request log on standard error\n";
}

std::optional<std::uint16_t> parsePort(std::string_view text)
{
    unsigned value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || value > 65535)
        return std::nullopt;
    return static_cast<std::uint16_t>(value);
}

int usageError(std::string_view message)
{
    std::cerr << "tovu-devserver: " << message << '\n';
    printUsage(std::cerr);
    return 2;
}

} // namespace

int main(int argc, char **argv)
{
    const std::vector<std::string_view> arguments(argv + 1, argv + argc);
    TovuDevServerOptions options;
    options.logRequests = true;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string_view argument = arguments[i];
        if (argument == "--help" || argument == "-h") {
            printUsage(std::cout);
            return 0;
        }
        if (argument == "--quiet") {
            options.logRequests = false;
            continue;
        }
        const bool takesValue
            = argument == "--port" || argument == "--data" || argument == "--db" || argument == "--config";
        if (!takesValue)
            return usageError("unknown argument \"" + std::string(argument) + "\"");
        if (i + 1 == arguments.size())
            return usageError(std::string(argument) + " needs a value");
        const std::string_view value = arguments[++i];
        if (argument == "--port") {
            const std::optional<std::uint16_t> port = parsePort(value);
            if (!port)
                return usageError("--port: \"" + std::string(value) + "\" is not a port number (0 to 65535)");
            options.port = *port;
        } else if (argument == "--data") {
            options.dataDir = value;
        } else if (argument == "--db") {
            options.databasePath = value;
        } else {
            options.configPath = value;
        }
    }

    // SIGINT and SIGTERM are taken by sigwait() below instead of a handler, so
    // shutting down runs as ordinary code. Blocked before any thread starts,
    // so every server thread inherits the mask. SIGPIPE stays blocked: a
    // client that hangs up must not end the process.
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    sigaddset(&signals, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);

    TovuDevServer server(options);
    const std::string url = server.start();
    if (url.empty()) {
        std::cerr << "tovu-devserver: " << server.errorString() << '\n';
        return server.startError() == TovuDevServer::StartError::listen ? 1 : 2;
    }
    std::cerr << "tovu-devserver: responses are stored in " << server.databasePath().string() << '\n';
    std::cout << "listening on " << url << std::endl;

    sigdelset(&signals, SIGPIPE);
    int received = 0;
    while (sigwait(&signals, &received) != 0) { }
    if (options.logRequests)
        std::cerr << "tovu-devserver: stopping on signal " << received << '\n';
    server.stop();
    return 0;
}
