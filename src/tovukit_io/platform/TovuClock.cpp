#include <tovukit_io/platform/TovuManualClock.h>

#include <QDateTime>

namespace {

class TovuSystemClock : public TovuClock
{
public:
    std::int64_t epochMilliseconds() const override { return QDateTime::currentMSecsSinceEpoch(); }
    QTime localTime() const override { return QTime::currentTime(); }
};

} // namespace

TovuClock::~TovuClock() = default;

std::string TovuClock::iso8601Now() const
{
    return iso8601(epochMilliseconds());
}

std::string TovuClock::iso8601(std::int64_t epochMilliseconds)
{
    // Qt::ISODate writes whole seconds and "Z" for UTC.
    return QDateTime::fromMSecsSinceEpoch(epochMilliseconds, Qt::UTC).toString(Qt::ISODate).toStdString();
}

TovuClock *TovuClock::system()
{
    static TovuSystemClock clock;
    return &clock;
}

TovuManualClock::TovuManualClock(std::int64_t epochMilliseconds)
    : m_epochMilliseconds(epochMilliseconds)
{ }

QTime TovuManualClock::localTime() const
{
    const auto utc = QDateTime::fromMSecsSinceEpoch(m_epochMilliseconds, Qt::UTC);
    return utc.addSecs(m_utcOffsetSeconds).time();
}
