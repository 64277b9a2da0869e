#pragma once

#include "TovuDemoOptions.h"
#include "TovuDemoSession.h"

#include <QWidget>

class TovuDemoActivityPane;
class TovuDemoBackend;
class TovuDemoControlPanel;
class TovuDemoHostScreen;

/// The demo's window: the host app's phone screen, where surveys appear, and
/// beside it the controls and what happened (the log and the stored
/// responses). It routes the library's console lines (TovuLog::setHandler)
/// into its log while it exists.
class TovuDemoWindow : public QWidget
{
    Q_OBJECT
public:
    TovuDemoWindow(TovuDemoBackend &backend, TovuDemoSession &session, QWidget *parent = nullptr);
    ~TovuDemoWindow() override;

    TovuDemoHostScreen *hostScreen() const { return m_screen; }
    TovuDemoControlPanel *controlPanel() const { return m_controls; }
    TovuDemoActivityPane *activityPane() const { return m_activity; }
    /// The web survey controls (a TovuDemoWebPanel), or null where the web path is not built.
    QWidget *webPanel() const { return m_webPanel; }

    /// Configures the session and shows it in the controls and the log.
    void configure(TovuDemoSession::Target target, const QString &id);
    /// Sets the look of the app and of the surveys, and shows it in the controls.
    void setLook(bool dark, TovuDemoOptions::Theme theme, const QColor &primaryColor);
    /// Also writes the library's console lines to standard output.
    void setEcho(bool echo) { m_echo = echo; }
    /// Asks the backend for its stored responses and lists them.
    void refreshStoredResponses();
    /// Fits the window to the screen it is on (the phone shrinks first).
    void fitToScreen();

Q_SIGNALS:
    void storedResponsesRefreshed();

private:
    void connectSession();
    void connectControls();
    void logLine(const QString &line);

    TovuDemoBackend &m_backend;
    TovuDemoSession &m_session;
    TovuDemoHostScreen *m_screen = nullptr;
    TovuDemoControlPanel *m_controls = nullptr;
    TovuDemoActivityPane *m_activity = nullptr;
    QWidget *m_webPanel = nullptr;
    TovuDemoOptions::Theme m_theme = TovuDemoOptions::Theme::survey;
    QColor m_primaryColor = QColor(0x7C, 0x3A, 0xED);
    bool m_dark = false;
    bool m_echo = false;
};
