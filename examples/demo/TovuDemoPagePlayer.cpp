#include "TovuDemoPagePlayer.h"

#include "TovuDemoInput.h"
#include "TovuDemoPng.h"

#include <tovukit_io/ui/TovuDropdownQuestionView.h>
#include <tovukit_io/ui/TovuIntroView.h>
#include <tovukit_io/ui/TovuMultiNPSQuestionView.h>
#include <tovukit_io/ui/TovuMultiRatingQuestionView.h>
#include <tovukit_io/ui/TovuMultipleChoiceQuestionView.h>
#include <tovukit_io/ui/TovuNPSQuestionView.h>
#include <tovukit_io/ui/TovuRatingQuestionView.h>
#include <tovukit_io/ui/TovuSingleChoiceQuestionView.h>
#include <tovukit_io/ui/TovuTextBoxQuestionView.h>
#include <tovukit_io/ui/TovuThankYouView.h>
#include <tovukit_io/ui/TovuToasterView.h>
#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/ui/kit/TovuTextArea.h>
#include <tovukit_io/ui/kit/TovuTextField.h>
#include <tovukit_io/viewmodel/TovuNPSQuestionViewModel.h>

#include <QDir>
#include <QLabel>
#include <QLayout>
#include <QScrollArea>

#include <algorithm>
#include <array>

namespace {

// How long a step may wait for its control, and a page for the next one.
constexpr qint64 stepPatienceMs = 6000;
constexpr qint64 pagePatienceMs = 8000;
constexpr int retryMs = 30;

QWidget *currentPage(const TovuToasterView *sheet)
{
    if (!sheet || sheet->contentStackView()->count() == 0)
        return nullptr;
    return sheet->contentStackView()->itemAt(0)->widget();
}

} // namespace

TovuDemoPagePlayer::TovuDemoPagePlayer(std::function<TovuToasterView *()> sheet, QWidget *screen, QObject *parent)
    : QObject(parent)
    , m_sheet(std::move(sheet))
    , m_screen(screen)
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

QString TovuDemoPagePlayer::kindName(const QWidget *page)
{
    if (qobject_cast<const TovuIntroView *>(page))
        return QStringLiteral("intro");
    if (qobject_cast<const TovuThankYouView *>(page))
        return QStringLiteral("thank-you");
    const auto typeName = [](TovuQuestionType type) {
        return QString::fromLatin1(rawValue(type)).toLower().replace(u'_', u'-');
    };
    if (qobject_cast<const TovuSingleChoiceQuestionView *>(page))
        return typeName(TovuQuestionType::singleChoice);
    if (qobject_cast<const TovuMultipleChoiceQuestionView *>(page))
        return typeName(TovuQuestionType::multipleChoice);
    if (qobject_cast<const TovuDropdownQuestionView *>(page))
        return typeName(TovuQuestionType::dropdown);
    if (const auto *text = qobject_cast<const TovuTextBoxQuestionView *>(page)) {
        const std::optional<TovuQuestion> &question = text->question();
        const bool multiple = question && question->type == TovuQuestionType::multipleTextBox;
        return typeName(multiple ? TovuQuestionType::multipleTextBox : TovuQuestionType::singleTextBox);
    }
    if (qobject_cast<const TovuNPSQuestionView *>(page))
        return typeName(TovuQuestionType::nps);
    if (qobject_cast<const TovuMultiNPSQuestionView *>(page))
        return typeName(TovuQuestionType::multiNps);
    if (qobject_cast<const TovuRatingQuestionView *>(page))
        return typeName(TovuQuestionType::rating);
    if (qobject_cast<const TovuMultiRatingQuestionView *>(page))
        return typeName(TovuQuestionType::multiRating);
    return QStringLiteral("page");
}

// -- the page loop ---------------------------------------------------------------

void TovuDemoPagePlayer::poll()
{
    if (!m_running || (m_page && !m_scriptDone))
        return; // a page's script is under way
    QWidget *page = currentPage(m_sheet ? m_sheet() : nullptr);
    if (page && page != m_page.data() && page->isVisible()) {
        begin(page);
        return;
    }
    if (m_number > 0 && m_pageClock.elapsed() > pagePatienceMs) {
        QString why = QStringLiteral("page %1 (%2) did not move on after it was answered").arg(m_number).arg(m_kind);
        // A page that refuses its answer says why.
        if (m_page) {
            for (const QLabel *label : m_page->findChildren<QLabel *>()) {
                if (label->isVisible() && label->text().startsWith(u"Please"))
                    why += QStringLiteral(": \"%1\"").arg(label->text());
            }
        }
        fail(why);
    } else if (m_number == 0 && m_pageClock.elapsed() > 2 * pagePatienceMs) {
        fail(QStringLiteral("no survey page appeared"));
    }
}

void TovuDemoPagePlayer::begin(QWidget *page)
{
    m_page = page;
    ++m_number;
    m_kind = kindName(page);
    m_title.clear();
    m_answer.clear();
    m_shot.clear();
    m_typed = 0;
    m_lastPage = false;
    m_steps = script(page);
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

void TovuDemoPagePlayer::reveal(QWidget *widget)
{
    // A page taller than the sheet scrolls: bring the control into view first, as a finger would.
    if (TovuToasterView *sheet = m_sheet ? m_sheet() : nullptr; sheet && sheet->isAncestorOf(widget))
        sheet->contentScrollArea()->ensureWidgetVisible(widget, 8, 16);
}

TovuDemoPagePlayer::Step TovuDemoPagePlayer::clickStep(std::function<QWidget *()> target, const QString &what)
{
    return {[this, target = std::move(target)] {
                QWidget *widget = target();
                if (!widget || !widget->isVisible() || !widget->isEnabled())
                    return false;
                reveal(widget);
                TovuDemoInput::click(widget);
                return true;
            },
            QStringLiteral("clicking ") + what};
}

TovuDemoPagePlayer::Step TovuDemoPagePlayer::typeStep(std::function<QWidget *()> field, const QString &text,
                                                      const QString &what)
{
    return {[this, field = std::move(field), text] {
                QWidget *widget = field();
                if (!widget || !widget->isVisible() || !widget->isEnabled())
                    return false;
                if (m_typed == 0) {
                    reveal(widget);
                    TovuDemoInput::click(widget);
                    widget->setFocus(Qt::MouseFocusReason);
                }
                const qsizetype left = text.size() - m_typed;
                const qsizetype count
                    = m_pace.charactersPerStep < 0 ? left : std::min<qsizetype>(m_pace.charactersPerStep, left);
                TovuDemoInput::type(widget, text.mid(m_typed, count));
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
                if (m_screenshotsDir.isEmpty() || !m_screen)
                    return true;
                const QString path
                    = QDir(m_screenshotsDir)
                          .filePath(QStringLiteral("%1-%2.png").arg(m_number, 2, 10, QChar(u'0')).arg(m_kind));
                if (!TovuDemoPng::save(m_screen->grab().toImage(), path, m_palette)) {
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
