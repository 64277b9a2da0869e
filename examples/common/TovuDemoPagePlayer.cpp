#include "TovuDemoPagePlayer.h"

#include "TovuDemoPng.h"

#include <tovukit_io/viewmodel/TovuIntroViewModel.h>
#include <tovukit_io/viewmodel/TovuQuestionViewModel.h>
#include <tovukit_io/viewmodel/TovuThankYouViewModel.h>

#include <QDir>

#include <algorithm>

namespace {

// How long a step may wait for its control, and a page for the next one.
constexpr qint64 stepPatienceMs = 6000;
constexpr qint64 pagePatienceMs = 8000;
constexpr int retryMs = 30;

} // namespace

TovuDemoPagePlayer::TovuDemoPagePlayer(QObject *parent)
    : QObject(parent)
{
    m_poll.setInterval(20);
    connect(&m_poll, &QTimer::timeout, this, &TovuDemoPagePlayer::poll);
    m_stepTimer.setSingleShot(true);
    connect(&m_stepTimer, &QTimer::timeout, this, &TovuDemoPagePlayer::runStep);
}

TovuDemoPagePlayer::~TovuDemoPagePlayer() = default;

void TovuDemoPagePlayer::start(int pages)
{
    m_pages = pages;
    m_number = 0;
    m_page = nullptr;
    m_given.clear();
    m_screenshots.clear();
    m_running = true;
    m_scriptDone = true;
    m_lastPage = false;
    m_pageClock.start();
    m_poll.start();
}

void TovuDemoPagePlayer::stop()
{
    m_running = false;
    m_poll.stop();
    m_stepTimer.stop();
}

QString TovuDemoPagePlayer::kindName(const QObject *model)
{
    if (qobject_cast<const TovuIntroViewModel *>(model))
        return QStringLiteral("intro");
    if (qobject_cast<const TovuThankYouViewModel *>(model))
        return QStringLiteral("thank-you");
    const auto *question = qobject_cast<const TovuQuestionViewModel *>(model);
    if (!question || !question->question())
        return QStringLiteral("page");
    return QString::fromLatin1(rawValue(question->question()->type)).toLower().replace(u'_', u'-');
}

// -- the page loop ---------------------------------------------------------------

void TovuDemoPagePlayer::poll()
{
    if (!m_running || (m_page && !m_scriptDone))
        return; // a page's script is under way
    QObject *page = shownPage();
    if (page && page != m_page.data()) {
        begin(page);
        return;
    }
    if (m_number > 0 && m_pageClock.elapsed() > pagePatienceMs) {
        QString why = QStringLiteral("page %1 (%2) did not move on after it was answered").arg(m_number).arg(m_kind);
        // A page that refuses its answer says why.
        if (const auto *question = qobject_cast<const TovuQuestionViewModel *>(m_model.data());
            question && question->isValidationVisible())
            why += QStringLiteral(": \"%1\"").arg(question->validationMessage());
        fail(why);
    } else if (m_number == 0 && m_pageClock.elapsed() > 2 * pagePatienceMs) {
        fail(QStringLiteral("no survey page appeared"));
    }
}

void TovuDemoPagePlayer::begin(QObject *page)
{
    m_page = page;
    m_model = modelOf(page);
    ++m_number;
    m_kind = kindName(m_model);
    m_title.clear();
    m_answer.clear();
    m_shot.clear();
    m_typed = 0;
    m_lastPage = false;
    m_steps = m_model ? script(m_model) : stuck(QStringLiteral("reading the page's view model"));
    m_step = 0;
    m_scriptDone = false;
    m_stepClock.start();
    m_stepTimer.start(m_pace.thinkMs);
}

void TovuDemoPagePlayer::runStep()
{
    if (!m_running)
        return;
    if (!m_page) {
        fail(QStringLiteral("page %1 (%2) went away before it was answered").arg(m_number).arg(m_kind));
        return;
    }
    if (m_step >= m_steps.size()) {
        finishPage();
        return;
    }
    // A copy: a step may add steps after itself.
    const Step step = m_steps[m_step];
    if (step.run()) {
        ++m_step;
        m_stepClock.start();
        if (m_step >= m_steps.size())
            finishPage();
        else if (m_running)
            m_stepTimer.start(m_pace.stepMs);
    } else if (m_stepClock.elapsed() > stepPatienceMs) {
        fail(QStringLiteral("page %1 (%2): %3 never became possible").arg(m_number).arg(m_kind, step.what));
    } else if (m_running) {
        m_stepTimer.start(retryMs);
    }
}

void TovuDemoPagePlayer::finishPage()
{
    if (!m_running)
        return;
    m_scriptDone = true;
    m_pageClock.start();
    Q_EMIT pageDone(m_number, std::max(m_pages, m_number), m_kind, m_title, m_answer, m_shot);
    if (m_lastPage) {
        stop();
        Q_EMIT finished();
    }
}

void TovuDemoPagePlayer::fail(const QString &why)
{
    stop();
    Q_EMIT failed(why);
}

// -- steps -------------------------------------------------------------------------

bool TovuDemoPagePlayer::ready(const Control &control) const
{
    return m_page && isReady(m_page, control);
}

TovuDemoPagePlayer::Step TovuDemoPagePlayer::clickStep(Control target, const QString &what)
{
    return {[this, target = std::move(target)] {
                if (!ready(target))
                    return false;
                click(m_page, target);
                return true;
            },
            QStringLiteral("clicking ") + what};
}

TovuDemoPagePlayer::Step TovuDemoPagePlayer::typeStep(Control field, const QString &text, const QString &what)
{
    return {[this, field = std::move(field), text] {
                if (!ready(field))
                    return false;
                if (m_typed == 0)
                    focus(m_page, field);
                const qsizetype left = text.size() - m_typed;
                const qsizetype count
                    = m_pace.charactersPerStep < 0 ? left : std::min<qsizetype>(m_pace.charactersPerStep, left);
                type(m_page, field, text.mid(m_typed, count));
                m_typed += static_cast<int>(count);
                if (m_typed < text.size())
                    return false; // more next time, so it reads as typing
                m_typed = 0;
                return true;
            },
            QStringLiteral("typing into ") + what};
}

TovuDemoPagePlayer::Step TovuDemoPagePlayer::shootStep()
{
    return {[this] {
                if (m_screenshotsDir.isEmpty())
                    return true;
                const QImage picture = screenshot();
                if (picture.isNull())
                    return true;
                const QString path
                    = QDir(m_screenshotsDir)
                          .filePath(QStringLiteral("%1-%2.png").arg(m_number, 2, 10, QChar(u'0')).arg(m_kind));
                if (!TovuDemoPng::save(picture, path, m_palette)) {
                    fail(QStringLiteral("cannot write %1").arg(path));
                    return false;
                }
                m_shot = path;
                m_screenshots << path;
                return true;
            },
            QStringLiteral("saving the screenshot")};
}

std::vector<TovuDemoPagePlayer::Step> TovuDemoPagePlayer::stuck(const QString &what)
{
    return {{[] { return false; }, what}};
}
