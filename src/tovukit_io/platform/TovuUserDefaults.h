#pragma once

#include <tovukit_io/platform/TovuKeyValueStore.h>

#include <QString>

/// The library's own persistent store, as the system's user defaults are to
/// a phone app: one SQLite file in the application's data folder
/// (QStandardPaths::AppDataLocation, which Qt's test mode redirects).
class TovuUserDefaults
{
public:
    /// A TovuSqliteKeyValueStore at standardPath(), opened on first use; it
    /// lives until the process ends. Needs the application's name to be set
    /// first, as every per-app folder does; without one the store reports
    /// that once and keeps values in memory.
    static TovuKeyValueStore &standard();
    /// The file standard() keeps its data in; empty when the app has no
    /// data folder of its own.
    static QString standardPath();

    TovuUserDefaults() = delete;
};
