#include "TovuDemoUrlOpener.h"

#include <utility>

TovuDemoUrlOpener::TovuDemoUrlOpener(std::function<void(const QUrl &)> onOpen)
    : m_onOpen(std::move(onOpen))
{ }

void TovuDemoUrlOpener::open(const QUrl &url)
{
    if (m_onOpen)
        m_onOpen(url);
}
