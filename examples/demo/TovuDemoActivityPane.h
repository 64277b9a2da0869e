#pragma once

#include "TovuDemoActivity.h"

#include <QWidget>

#include <functional>

class QLabel;
class QListWidget;
class QPlainTextEdit;
class QPushButton;
class QTabWidget;
class TovuDemoStoredResponses;

/// What happened, in two tabs: the log (the library's console lines, the
/// manager's signals and the demo's own notes) and the responses the backend
/// has stored, each one's JSON shown when it is selected.
class TovuDemoActivityPane : public QWidget
{
    Q_OBJECT
public:
    using Source = TovuDemoActivity::Source;

    explicit TovuDemoActivityPane(QWidget *parent = nullptr);

    void appendLine(Source source, const QString &text);
    /// Lists `responses`, naming each one's survey with `titleOf` (survey id to title).
    void setStoredResponses(const TovuDemoStoredResponses &responses,
                            const std::function<QString(const QString &)> &titleOf);
    /// The log's text, for tests and for saving.
    QString logText() const;
    int storedCount() const;
    void showStoredResponses();

Q_SIGNALS:
    void refreshRequested();

private:
    void showSelected();

    QTabWidget *m_tabs = nullptr;
    QPlainTextEdit *m_log = nullptr;
    QListWidget *m_stored = nullptr;
    QPlainTextEdit *m_json = nullptr;
    QLabel *m_storedHint = nullptr;
    QPushButton *m_refresh = nullptr;
};
