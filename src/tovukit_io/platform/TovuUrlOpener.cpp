#include <tovukit_io/platform/TovuUrlOpener.h>

#include <QDesktopServices>

namespace {

class TovuSystemUrlOpener : public TovuUrlOpener
{
protected:
    void open(const QUrl &url) override { QDesktopServices::openUrl(url); }
};

TovuUrlOpener *currentDefault = nullptr;

} // namespace

TovuUrlOpener::~TovuUrlOpener()
{
    if (currentDefault == this)
        currentDefault = nullptr;
}

bool TovuUrlOpener::isOpenable(const QUrl &url)
{
    const QString scheme = url.scheme().toLower();
    return url.isValid() && (scheme == u"http" || scheme == u"https") && !url.host().isEmpty();
}

bool TovuUrlOpener::openIfValid(const QUrl &url)
{
    if (!isOpenable(url))
        return false;
    open(url);
    return true;
}

TovuUrlOpener *TovuUrlOpener::system()
{
    static TovuSystemUrlOpener opener;
    return &opener;
}

TovuUrlOpener *TovuUrlOpener::defaultOpener()
{
    return currentDefault ? currentDefault : system();
}

void TovuUrlOpener::setDefault(TovuUrlOpener *opener)
{
    currentDefault = opener;
}

void TovuRecordingUrlOpener::open(const QUrl &url)
{
    m_openedUrls.push_back(url);
}
