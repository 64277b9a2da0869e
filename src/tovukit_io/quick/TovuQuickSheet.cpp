#include <tovukit_io/quick/TovuQuickSheet.h>

#include <tovukit_io/quick/TovuQuickStyle.h>

#include <tovukit_io/viewmodel/TovuKeyboardLift.h>
#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/viewmodel/TovuProgressViewModel.h>
#include <tovukit_io/viewmodel/TovuSheetMetrics.h>

#include <QAccessible>
#include <QKeyEvent>
#include <QQuickWindow>

#include <algorithm>

namespace {

using Metrics = TovuSheetMetrics;

bool isTab(const QKeyEvent *event)
{
    return (event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab)
        && !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
}

QAccessibleInterface *firstText(QAccessibleInterface *node)
{
    if (!node)
        return nullptr;
    if (node->role() == QAccessible::StaticText)
        return node;
    for (int i = 0; i < node->childCount(); ++i) {
        if (QAccessibleInterface *text = firstText(node->child(i)))
            return text;
    }
    return nullptr;
}

} // namespace

TovuQuickSheet::TovuQuickSheet(QQuickItem *parent)
    : QQuickItem(parent)
{
    // The whole sheet is the dimming layer: it takes what would reach the host.
    setAcceptedMouseButtons(Qt::AllButtons);
    setAcceptTouchEvents(true);
    setAcceptHoverEvents(true);
    setFlag(ItemIsFocusScope);
    setDimmingAlpha(Metrics::defaultDimmingAlpha);
    m_keyboardLift = new TovuKeyboardLift([this](qreal offset) { setBottomOffset(offset); }, this);
    m_progress = new TovuProgressViewModel(this);
}

TovuQuickSheet::~TovuQuickSheet()
{
    if (m_window)
        m_window->removeEventFilter(this);
}

void TovuQuickSheet::setDimmingAlpha(qreal alpha)
{
    alpha = std::clamp<qreal>(alpha, 0, 1);
    if (m_dimmingAlpha == alpha)
        return;
    m_dimmingAlpha = alpha;
    Q_EMIT dimmingAlphaChanged();
}

void TovuQuickSheet::setContentSlot(QQuickItem *slot)
{
    if (m_slot == slot)
        return;
    m_slot = slot;
    Q_EMIT contentSlotChanged();
}

void TovuQuickSheet::present(QQuickItem *host)
{
    if (!host || m_host)
        return;
    m_host = host;
    m_window = host->window();
    if (m_window) {
        m_previousFocus = m_window->activeFocusItem();
        m_window->installEventFilter(this);
        connect(m_window, &QQuickWindow::activeFocusItemChanged, this, &TovuQuickSheet::activeFocusMoved);
    }
    setParentItem(host);
    setZ(std::numeric_limits<qreal>::max() / 2);
    m_keyboardLift->setTracking(true);
    setTranslation(Metrics::offscreenDistance);
    // Keys go to the sheet from now on; it swallows what its controls do not take.
    forceActiveFocus(Qt::OtherFocusReason);
    // The dimming layer is there at once; only the panel moves.
    TovuMotion::animate(this, Metrics::offscreenDistance, 0, TovuMotion::durationMs(Metrics::presentSeconds),
                        TovuMotion::spring(Metrics::presentDampingRatio, Metrics::presentInitialVelocity),
                        [this](qreal value) { setTranslation(value); });
}

void TovuQuickSheet::dismiss()
{
    if (m_dismissing)
        return;
    m_dismissing = true;
    Q_EMIT dismissingChanged();
    m_keyboardLift->setTracking(false);
    // A closing sheet takes no more answers: keys rest on the sheet itself.
    if (m_window && contains(m_window->activeFocusItem()))
        forceActiveFocus(Qt::OtherFocusReason);
    const qreal start = m_translation;
    TovuMotion::animate(
        this, 0, 1, TovuMotion::durationMs(Metrics::dismissSeconds), QEasingCurve(QEasingCurve::InOutQuad),
        [this, start](qreal progress) {
            setTranslation(start + (Metrics::offscreenDistance - start) * progress);
            setOpacity(1 - progress);
        },
        [this] {
            restoreFocus();
            if (m_window)
                m_window->removeEventFilter(this);
            setVisible(false);
            setParentItem(nullptr);
            deleteLater();
        });
}

void TovuQuickSheet::skipTapped()
{
    if (m_dismissing)
        return;
    if (onSkip)
        onSkip();
    dismiss();
}

void TovuQuickSheet::setQuestionView(QQuickItem *page)
{
    if (m_page) {
        // The old page may be the one whose button led here: delete it later.
        m_page->setVisible(false);
        m_page->setParentItem(nullptr);
        m_page->deleteLater();
    }
    m_page = page;
    if (page) {
        page->setParent(this);
        page->setParentItem(m_slot ? m_slot.data() : this);
        greetPage(page);
    }
    Q_EMIT currentPageChanged();
}

void TovuQuickSheet::greetPage(QQuickItem *page)
{
    if (m_dismissing)
        return;
    const bool keys = TovuQuickStyle::keyboardNavigation();
    for (QQuickItem *candidate = page->nextItemInFocusChain(true); candidate && candidate != page;
         candidate = candidate->nextItemInFocusChain(true)) {
        if (!page->isAncestorOf(candidate))
            break;
        // A pointer user's first field is not focused: on a touch screen that would raise the keyboard.
        if (!keys && (candidate->flags() & QQuickItem::ItemAcceptsInputMethod))
            break;
        candidate->forceActiveFocus(keys ? Qt::TabFocusReason : Qt::OtherFocusReason);
        break;
    }
    // A screen reader hears the page's first text: its title, or the intro's words.
    if (!QAccessible::isActive())
        return;
    if (QAccessibleInterface *title = firstText(QAccessible::queryAccessibleInterface(page))) {
        QAccessibleEvent announce(title, QAccessible::Alert);
        QAccessible::updateAccessibility(&announce);
    }
}

void TovuQuickSheet::setProgress(int current, int total)
{
    m_progress->setProgress(current, total);
}

void TovuQuickSheet::keyboardWillShow(const QRectF &keyboardFrame, int durationMs)
{
    m_keyboardLift->keyboardWillShow(keyboardFrame, durationMs);
}

void TovuQuickSheet::keyboardWillHide(int durationMs)
{
    m_keyboardLift->keyboardWillHide(durationMs);
}

void TovuQuickSheet::setTranslation(qreal translation)
{
    if (m_translation == translation)
        return;
    m_translation = translation;
    Q_EMIT panelTranslationChanged();
}

void TovuQuickSheet::setBottomOffset(qreal offset)
{
    if (m_bottomOffset == offset)
        return;
    m_bottomOffset = offset;
    Q_EMIT bottomOffsetChanged();
}

bool TovuQuickSheet::contains(const QQuickItem *item) const
{
    return item && (item == this || isAncestorOf(item));
}

// Tab and Backtab cycle through the sheet's controls only, never into the host.
bool TovuQuickSheet::moveFocus(bool forward)
{
    QQuickItem *start = m_window ? m_window->activeFocusItem() : nullptr;
    if (!contains(start))
        start = this;
    for (QQuickItem *candidate = start;;) {
        candidate = candidate->nextItemInFocusChain(forward);
        if (!candidate || candidate == start)
            return true;
        if (candidate != this && contains(candidate) && candidate->isEnabled() && candidate->isVisible()) {
            candidate->forceActiveFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
    }
}

void TovuQuickSheet::activeFocusMoved()
{
    if (!m_window || !m_host)
        return;
    QQuickItem *focus = m_window->activeFocusItem();
    if (contains(focus)) {
        m_lastFocus = focus;
        scrollIntoView(focus);
        return;
    }
    // A sheet put up over this one takes the input; fighting it for focus would never end.
    for (QQuickItem *item = focus; item; item = item->parentItem()) {
        if (item != this && qobject_cast<TovuQuickSheet *>(item))
            return;
    }
    // The host's own items stay out of reach while the sheet covers them, also when
    // the host's code hands one of them focus.
    if (!m_dismissing && focus && (focus == m_host || m_host->isAncestorOf(focus))) {
        QQuickItem *back = m_lastFocus && contains(m_lastFocus) && m_lastFocus->isVisible() ? m_lastFocus.data() : this;
        back->forceActiveFocus(Qt::OtherFocusReason);
    }
}

// A control reached with Tab on a page taller than the panel scrolls into view,
// as it does in the widget sheet's scroll area.
void TovuQuickSheet::scrollIntoView(QQuickItem *item)
{
    if (!m_slot || !m_slot->isAncestorOf(item))
        return;
    QQuickItem *view = m_slot->parentItem();
    while (view && !view->inherits("QQuickFlickable"))
        view = view->parentItem();
    if (!view)
        return;
    const QRectF place = item->mapRectToItem(view, item->boundingRect());
    qreal shift = 0;
    if (place.bottom() > view->height())
        shift = place.bottom() - view->height();
    if (place.top() - shift < 0)
        shift = place.top();
    if (shift != 0)
        view->setProperty("contentY", view->property("contentY").toReal() + shift);
}

void TovuQuickSheet::restoreFocus()
{
    if (!m_window)
        return;
    QQuickItem *focus = m_window->activeFocusItem();
    if (focus && !contains(focus))
        return; // moved on by the host already
    if (m_previousFocus && !contains(m_previousFocus))
        m_previousFocus->forceActiveFocus(Qt::OtherFocusReason);
}

bool TovuQuickSheet::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_window || !isVisible())
        return QQuickItem::eventFilter(watched, event);
    if (event->type() == QEvent::ShortcutOverride) {
        // The host's shortcuts stay quiet while the sheet is up: keys go to the sheet.
        event->accept();
        return false;
    }
    if (event->type() == QEvent::KeyPress)
        TovuQuickStyle::setKeyboardNavigation(true);
    else if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::TouchBegin)
        TovuQuickStyle::setKeyboardNavigation(false);
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        skipTapped(); // Escape is Skip
        return true;
    }
    if (event->type() == QEvent::KeyPress && isTab(static_cast<QKeyEvent *>(event))) {
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool backwards = key->key() == Qt::Key_Backtab || (key->modifiers() & Qt::ShiftModifier);
        if (!m_dismissing)
            moveFocus(!backwards);
        return true;
    }
    return QQuickItem::eventFilter(watched, event);
}

// What reaches the sheet itself (a tap on the dimming layer, a key no control
// took) ends here and never goes on to the host below.
void TovuQuickSheet::mousePressEvent(QMouseEvent *event)
{
    event->accept();
}

void TovuQuickSheet::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
}

void TovuQuickSheet::mouseDoubleClickEvent(QMouseEvent *event)
{
    event->accept();
}

void TovuQuickSheet::wheelEvent(QWheelEvent *event)
{
    event->accept();
}

void TovuQuickSheet::touchEvent(QTouchEvent *event)
{
    event->accept();
}

void TovuQuickSheet::hoverMoveEvent(QHoverEvent *event)
{
    event->accept();
}

void TovuQuickSheet::keyPressEvent(QKeyEvent *event)
{
    event->accept();
}

void TovuQuickSheet::keyReleaseEvent(QKeyEvent *event)
{
    event->accept();
}
