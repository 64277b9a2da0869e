#pragma once

#include <tovukit_io/platform/TovuUrlOpener.h>

#include <functional>

/// Opens nothing: tells the demo which address a thank-you page would open,
/// so a demo run never starts a browser.
class TovuDemoUrlOpener : public TovuUrlOpener
{
public:
    explicit TovuDemoUrlOpener(std::function<void(const QUrl &)> onOpen);

protected:
    void open(const QUrl &url) override;

private:
    std::function<void(const QUrl &)> m_onOpen;
};
