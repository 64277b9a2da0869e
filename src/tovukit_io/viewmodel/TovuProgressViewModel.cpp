#include <tovukit_io/viewmodel/TovuProgressViewModel.h>

#include <algorithm>

TovuProgressViewModel::TovuProgressViewModel(QObject *parent)
    : QObject(parent)
{ }

qreal TovuProgressViewModel::fraction() const
{
    return isShown() ? static_cast<qreal>(m_current) / m_total : 0;
}

QString TovuProgressViewModel::text() const
{
    return isShown() ? tr("%1 of %2").arg(m_current).arg(m_total) : QString();
}

QString TovuProgressViewModel::accessibleName() const
{
    return isShown() ? tr("Question %1 of %2").arg(m_current).arg(m_total) : QString();
}

void TovuProgressViewModel::setProgress(int current, int total)
{
    total = std::max(0, total);
    current = std::clamp(current, 0, total);
    if (current == m_current && total == m_total)
        return;
    m_current = current;
    m_total = total;
    Q_EMIT changed();
}
