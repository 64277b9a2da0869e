#pragma once

#include <tovukit_io/platform/TovuKeyValueStore.h>

/// The library's own persistent store, as the system's user defaults are to
/// a phone app: one SQLite file in the application's data folder
/// (QStandardPaths::AppDataLocation, which Qt's test mode redirects).
class TovuUserDefaults
{
public:
    /// Opened on first use; lives until the process ends. Needs the
    /// application's name to be set first, as every per-app folder does.
    static TovuKeyValueStore &standard();
    /// The file standard() keeps its data in.
    static QString standardPath();

    TovuUserDefaults() = delete;
};
