#pragma once

#include "TovuDevServerOptions.h"

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

/// The local backend on 127.0.0.1, on its own threads, for tests, demos and
/// development without an account.
///
/// \code
/// TovuDevServer server;                 // sample surveys, demo key, fresh database
/// const std::string url = server.start(); // "http://127.0.0.1:40123", accepting connections
/// ASSERT_FALSE(url.empty()) << server.errorString();
/// // … point the library at url …
/// server.stop();                        // or let the destructor do it
/// \endcode
///
/// Each instance has its own response store, so tests do not see each
/// other's responses.
class TovuDevServer
{
public:
    /// Why start() failed.
    enum class StartError {
        none,
        setup, ///< data folder, config file or database unusable
        listen, ///< the port could not be bound
    };

    explicit TovuDevServer(TovuDevServerOptions options = {});
    ~TovuDevServer();
    TovuDevServer(const TovuDevServer &) = delete;
    TovuDevServer &operator=(const TovuDevServer &) = delete;

    /// Starts serving and returns "http://127.0.0.1:PORT", or an empty text
    /// when it could not (errorString() says why). Starting a running server
    /// returns its URL again.
    std::string start();
    /// Stops serving; requests held by a delay rule end at once. Idempotent.
    void stop();

    bool isRunning() const;
    std::uint16_t port() const;
    std::string url() const;
    const std::string &errorString() const;
    StartError startError() const;
    /// The SQLite file of this server's responses.
    std::filesystem::path databasePath() const;

private:
    class Private;
    std::unique_ptr<Private> d;
};
