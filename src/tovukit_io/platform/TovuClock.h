#pragma once

#include <QTime>

#include <cstdint>
#include <string>

/// Where the library reads the time: session and question timings, the
/// response's start and end, the local wall-clock time of its quality flags.
/// Replaceable so tests can control time (TovuManualClock).
class TovuClock
{
public:
    virtual ~TovuClock();

    /// Milliseconds since 1970-01-01 UTC.
    virtual std::int64_t epochMilliseconds() const = 0;
    /// The local wall-clock time of day.
    virtual QTime localTime() const = 0;

    /// Now as ISO 8601 in UTC with whole seconds, such as "2026-11-15T18:14:20Z".
    std::string iso8601Now() const;
    static std::string iso8601(std::int64_t epochMilliseconds);

    /// The system's clock. Never null; lives until the process ends.
    static TovuClock *system();
};
