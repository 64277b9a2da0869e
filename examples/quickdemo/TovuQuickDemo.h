#pragma once

#include "TovuDemoActivity.h"
#include "TovuDemoOptions.h"
#include "TovuDemoStage.h"

#include <QColor>
#include <QObject>
#include <QPalette>
#include <QPointer>
#include <QStringListModel>
#include <QVariantList>
#include <QVariantMap>
#include <QtQml/qqmlregistration.h>

#include <memory>

class QQmlApplicationEngine;
class QQuickItem;
class QQuickWindow;
class TovuDemoBackend;
class TovuDemoSession;

/// tovu-quickdemo's window: Main.qml, which draws the host app's phone screen,
/// the controls and the log, and this object, its `demo`, which holds what the
/// window does. QML asks the manager (`demo.manager`, the calls of the
/// `TovuNativeSurveyManager` singleton) to show surveys over the phone screen,
/// an Item; the rest goes through here: configuring a sample (which may need a
/// fresh manager), the look, the offline switch, the log and the stored responses.
class TovuQuickDemo : public QObject, public TovuDemoStage
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("tovu-quickdemo makes the one there is")
    /// The session's manager of the moment.
    Q_PROPERTY(QObject *manager READ manager NOTIFY managerChanged)
    Q_PROPERTY(QString backendUrl READ backendUrl CONSTANT)
    Q_PROPERTY(QString apiKey READ apiKey CONSTANT)
    /// One map per sample: stem, title, surveyId, collectorId.
    Q_PROPERTY(QVariantList samples READ samples CONSTANT)
    Q_PROPERTY(QStringList sampleSurveyIds READ sampleSurveyIds CONSTANT)
    Q_PROPERTY(bool bySurveyId READ isBySurveyId NOTIFY configuredIdChanged)
    Q_PROPERTY(QString targetId READ targetId NOTIFY configuredIdChanged)
    /// The sample whose id is configured, or -1.
    Q_PROPERTY(int sampleIndex READ sampleIndex NOTIFY configuredIdChanged)
    Q_PROPERTY(bool dark READ isDark NOTIFY lookChanged)
    /// "survey", "host" or "primaryColor".
    Q_PROPERTY(QString theme READ themeName NOTIFY lookChanged)
    Q_PROPERTY(QColor primaryColor READ primaryColor NOTIFY lookChanged)
    /// The sheet shows which question of how many is on screen.
    Q_PROPERTY(bool showsProgress READ showsProgress WRITE setShowsProgress NOTIFY lookChanged)
    /// The host screen's colours, by name (TovuDemoLook::HostColors).
    Q_PROPERTY(QVariantMap colors READ colors NOTIFY lookChanged)
    /// What the host screen shows (TovuDemoStorefront).
    Q_PROPERTY(QVariantMap storefront READ storefront CONSTANT)
    Q_PROPERTY(bool online READ isOnline NOTIFY onlineChanged)
    /// A switch to or from offline is under way.
    Q_PROPERTY(bool switching READ isSwitching NOTIFY onlineChanged)
    /// The log's lines, oldest first.
    Q_PROPERTY(QStringListModel *log READ log CONSTANT)
    /// One map per stored response, oldest first: summary, details, json.
    Q_PROPERTY(QVariantList storedResponses READ storedResponses NOTIFY storedResponsesChanged)
    /// Whether the activity pane shows the stored responses rather than the log.
    Q_PROPERTY(bool showingStoredResponses READ isShowingStoredResponses WRITE setShowingStoredResponses NOTIFY
                   showingStoredResponsesChanged)
    Q_PROPERTY(int interceptSeconds READ interceptSeconds CONSTANT)

public:
    /// How long "Intercept" waits before the survey shows.
    static constexpr int interceptDelay = 3;

    TovuQuickDemo(TovuDemoBackend &backend, TovuDemoSession &session, QObject *parent = nullptr);
    ~TovuQuickDemo() override;

    /// The window Main.qml made, or null when it could not be loaded.
    QQuickWindow *window() const;
    /// The phone's screen: what surveys cover.
    QQuickItem *hostScreen() const;

    QObject *manager() const;
    QString backendUrl() const;
    QString apiKey() const;
    QVariantList samples() const;
    QStringList sampleSurveyIds() const;
    bool isBySurveyId() const;
    QString targetId() const;
    int sampleIndex() const;
    bool isDark() const { return m_dark; }
    QString themeName() const;
    QColor primaryColor() const { return m_primaryColor; }
    QVariantMap colors() const;
    QVariantMap storefront() const;
    bool isOnline() const;
    bool isSwitching() const { return m_switching; }
    QStringListModel *log() { return &m_log; }
    QVariantList storedResponses() const { return m_storedResponses; }
    bool isShowingStoredResponses() const { return m_showingStored; }
    void setShowingStoredResponses(bool showing);
    int interceptSeconds() const { return interceptDelay; }

    /// Configures `id` as a survey id or a collector id.
    Q_INVOKABLE void configureId(bool bySurveyId, const QString &id);
    /// Configures the sample `index` by the kind of id configured now.
    Q_INVOKABLE void chooseSample(int index);
    /// Configures the sample chosen last by its survey id or its collector id.
    Q_INVOKABLE void chooseKind(bool bySurveyId);
    /// Light or dark, and the theme: "survey", "host" or "primaryColor".
    Q_INVOKABLE void setLook(bool dark, const QString &theme);
    void setLook(bool dark, TovuDemoOptions::Theme theme, const QColor &primaryColor) override;
    Q_INVOKABLE void setOnline(bool online);
    bool showsProgress() const;
    void setShowsProgress(bool shows);
    /// A line of the demo's own in the log.
    Q_INVOKABLE void note(const QString &text);
    Q_INVOKABLE void refreshStoredResponses();

    void configure(TovuDemoSession::Target target, const QString &id) override;
    QObject *host() const override;
    std::unique_ptr<TovuDemoPagePlayer> createPagePlayer() override;
    TovuDemoActivity &activity() override { return m_activity; }
    void showStoredResponses() override;
    QImage picture() override;
    void open(bool fitToScreen) override;

Q_SIGNALS:
    void managerChanged();
    void configuredIdChanged();
    void lookChanged();
    void onlineChanged();
    void storedResponsesChanged();
    void showingStoredResponsesChanged();

private:
    void appendLine(TovuDemoActivity::Source source, const QString &text);
    void listStoredResponses(const TovuDemoStoredResponses &responses);

    TovuDemoBackend &m_backend;
    TovuDemoSession &m_session;
    TovuDemoActivity m_activity;
    QStringListModel m_log;
    QVariantList m_storedResponses;
    int m_chosenSample = -1;
    bool m_showingStored = false;
    bool m_switching = false;
    bool m_dark = false;
    TovuDemoOptions::Theme m_theme = TovuDemoOptions::Theme::survey;
    QColor m_primaryColor = QColor(0x7C, 0x3A, 0xED);
    // The light palette the application started with; dark replaces it.
    QPalette m_lightPalette;
    std::unique_ptr<QQmlApplicationEngine> m_engine;
    QPointer<QQuickWindow> m_window;
};
