#include "TovuDemoActivityPane.h"

#include "TovuDemoStoredResponses.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSplitter>
#include <QTabWidget>
#include <QTextCursor>
#include <QVBoxLayout>

namespace {

// Log lines stop growing the document after this many; the oldest go.
constexpr int maximumLogLines = 5000;

QPlainTextEdit *monospaceView(QWidget *parent)
{
    auto *view = new QPlainTextEdit(parent);
    view->setReadOnly(true);
    view->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    view->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    return view;
}

} // namespace

TovuDemoActivityPane::TovuDemoActivityPane(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_tabs = new QTabWidget(this);
    layout->addWidget(m_tabs);

    m_log = monospaceView(m_tabs);
    m_log->setObjectName(QStringLiteral("log"));
    m_log->setMaximumBlockCount(maximumLogLines);
    m_log->setPlaceholderText(tr("The library's console lines and the manager's signals appear here."));
    m_tabs->addTab(m_log, tr("Log"));

    auto *stored = new QWidget(m_tabs);
    auto *storedLayout = new QVBoxLayout(stored);
    auto *bar = new QHBoxLayout;
    m_storedHint = new QLabel(tr("Nothing stored yet: answer a survey to the end."), stored);
    m_storedHint->setWordWrap(true);
    m_refresh = new QPushButton(tr("Refresh"), stored);
    bar->addWidget(m_storedHint, 1);
    bar->addWidget(m_refresh);
    storedLayout->addLayout(bar);
    auto *split = new QSplitter(Qt::Vertical, stored);
    m_stored = new QListWidget(split);
    m_stored->setObjectName(QStringLiteral("storedResponses"));
    m_stored->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_stored->setTextElideMode(Qt::ElideMiddle);
    m_json = monospaceView(split);
    m_json->setPlaceholderText(tr("Select a response to see it as the backend stored it."));
    split->addWidget(m_stored);
    split->addWidget(m_json);
    split->setStretchFactor(0, 1);
    split->setStretchFactor(1, 3);
    storedLayout->addWidget(split);
    m_tabs->addTab(stored, tr("Stored responses"));

    connect(m_refresh, &QPushButton::clicked, this, &TovuDemoActivityPane::refreshRequested);
    // Back on the log, the newest lines show.
    connect(m_tabs, &QTabWidget::currentChanged, this, [this](int index) {
        if (m_tabs->widget(index) == m_log)
            m_log->moveCursor(QTextCursor::End);
    });
    connect(m_stored, &QListWidget::currentRowChanged, this, &TovuDemoActivityPane::showSelected);
}

void TovuDemoActivityPane::appendLine(Source source, const QString &text)
{
    // Follow the newest line unless the reader has scrolled back.
    const QScrollBar *scroll = m_log->verticalScrollBar();
    const bool follow = !m_log->isVisible() || scroll->value() >= scroll->maximum() - 2;
    m_log->appendPlainText(TovuDemoActivity::format(source, text));
    if (follow)
        m_log->moveCursor(QTextCursor::End);
}

void TovuDemoActivityPane::setStoredResponses(const TovuDemoStoredResponses &responses,
                                              const std::function<QString(const QString &)> &titleOf)
{
    const int selected = m_stored->currentRow();
    m_stored->clear();
    for (const TovuDemoStoredResponses::Entry &entry : responses.entries()) {
        const QString title = titleOf ? titleOf(entry.surveyId) : QString();
        auto *item = new QListWidgetItem(entry.summary(title), m_stored);
        item->setData(Qt::UserRole, entry.prettyJson);
        item->setToolTip(entry.details());
    }
    const int count = m_stored->count();
    m_tabs->setTabText(1, tr("Stored responses (%1)").arg(count));
    m_storedHint->setText(count == 0 ? tr("Nothing stored yet: answer a survey to the end.")
                                     : tr("What the backend stored, newest last (GET /dev/responses)."));
    // Keep the selection, or show the newest.
    m_stored->setCurrentRow(count == 0 ? -1 : (selected >= 0 && selected < count - 1 ? selected : count - 1));
    showSelected();
}

QString TovuDemoActivityPane::logText() const
{
    return m_log->toPlainText();
}

int TovuDemoActivityPane::storedCount() const
{
    return m_stored->count();
}

void TovuDemoActivityPane::showStoredResponses()
{
    m_tabs->setCurrentIndex(1);
}

void TovuDemoActivityPane::showSelected()
{
    const QListWidgetItem *item = m_stored->currentItem();
    m_json->setPlainText(item ? item->data(Qt::UserRole).toString() : QString());
}
