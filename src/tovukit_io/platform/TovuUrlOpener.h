#pragma once

#include <QUrl>

#include <vector>

/// Opens addresses that come from a survey (the thank-you redirect) or a web
/// page. Replaceable, so hosts can route links themselves and tests can watch.
///
/// Only http and https addresses are ever opened; anything else counts as not
/// a valid address.
///
/// \code
/// TovuRecordingUrlOpener recorder;
/// TovuUrlOpener::setDefault(&recorder);  // views built from now on use it
/// \endcode
class TovuUrlOpener
{
public:
    virtual ~TovuUrlOpener();

    /// Whether `url` may be opened: absolute, http or https, with a host.
    static bool isOpenable(const QUrl &url);

    /// Opens `url` when it is openable; returns whether it was handed on.
    bool openIfValid(const QUrl &url);

    /// The opener views use unless given another: the system's, unless a host
    /// or test set one. Never null.
    static TovuUrlOpener *defaultOpener();
    /// `opener` stays owned by the caller; nullptr goes back to the system's.
    static void setDefault(TovuUrlOpener *opener);
    /// The system's: QDesktopServices::openUrl.
    static TovuUrlOpener *system();

protected:
    virtual void open(const QUrl &url) = 0;
};

/// Keeps every address it is asked to open, opening none.
class TovuRecordingUrlOpener : public TovuUrlOpener
{
public:
    const std::vector<QUrl> &openedUrls() const { return m_openedUrls; }

protected:
    void open(const QUrl &url) override;

private:
    std::vector<QUrl> m_openedUrls;
};
