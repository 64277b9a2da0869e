#pragma once

#include <tovukit_io/platform/TovuClock.h>

/// A clock that moves only when told: tests set the epoch and the local time
/// of day and advance them together.
class TovuManualClock : public TovuClock
{
public:
    /// Starts at `epochMilliseconds`, with the local time equal to UTC.
    explicit TovuManualClock(std::int64_t epochMilliseconds = 1'794'766'460'000);

    std::int64_t epochMilliseconds() const override { return m_epochMilliseconds; }
    QTime localTime() const override;

    void setEpochMilliseconds(std::int64_t epochMilliseconds) { m_epochMilliseconds = epochMilliseconds; }
    void advance(std::int64_t milliseconds) { m_epochMilliseconds += milliseconds; }
    /// How far the local time is ahead of UTC.
    void setUtcOffsetSeconds(int seconds) { m_utcOffsetSeconds = seconds; }

private:
    std::int64_t m_epochMilliseconds;
    int m_utcOffsetSeconds = 0;
};
