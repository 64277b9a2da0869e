#pragma once

#include <cstdint>
#include <filesystem>

/// How a TovuDevServer is set up. The defaults give a fresh backend that
/// serves the bundled sample surveys on an ephemeral port.
struct TovuDevServerOptions {
    /// 0 picks a free port; TovuDevServer::port() tells which.
    std::uint16_t port = 0;
    /// Survey documents in the backend's format, one per *.json file.
    std::filesystem::path dataDir = TOVU_DEVSERVER_SAMPLES_DIR;
    /// SQLite file of the submitted responses; empty means a file in a fresh
    /// temporary folder that is removed again when the server goes away.
    std::filesystem::path databasePath;
    /// Keys and collectors (README.md describes the format); empty means the
    /// demo key and one collector per survey document.
    std::filesystem::path configPath;
    /// One line per request on standard error.
    bool logRequests = false;
};
