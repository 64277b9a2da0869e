#pragma once

#include "TovuDemoActivity.h"
#include "TovuDemoOptions.h"
#include "TovuDemoSession.h"
#include "TovuDemoStage.h"

#include <QWidget>

class TovuDemoActivityPane;
class TovuDemoBackend;
class TovuDemoControlPanel;
class TovuDemoHostScreen;

/// The demo's window: the host app's phone screen, where surveys appear, and
/// beside it the controls and what happened (the log and the stored
/// responses, told by its TovuDemoActivity).
class TovuDemoWindow : public QWidget, public TovuDemoStage
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

    void configure(TovuDemoSession::Target target, const QString &id) override;
    QObject *host() const override;
    std::unique_ptr<TovuDemoPagePlayer> createPagePlayer() override;
    TovuDemoActivity &activity() override { return m_activityLog; }
    void showStoredResponses() override;
    QImage picture() override;
    void open(bool fitToScreen) override;

    void setLook(bool dark, TovuDemoOptions::Theme theme, const QColor &primaryColor) override;
    /// Fits the window to the screen it is on (the phone shrinks first).
    void fitToScreen();

private:
    void connectSession();
    void connectControls();

    TovuDemoBackend &m_backend;
    TovuDemoSession &m_session;
    TovuDemoActivity m_activityLog;
    TovuDemoHostScreen *m_screen = nullptr;
    TovuDemoControlPanel *m_controls = nullptr;
    TovuDemoActivityPane *m_activity = nullptr;
    QWidget *m_webPanel = nullptr;
    TovuDemoOptions::Theme m_theme = TovuDemoOptions::Theme::survey;
    QColor m_primaryColor = QColor(0x7C, 0x3A, 0xED);
    bool m_dark = false;
};
