#include <tovukit_io/ui/TovuToasterView.h>

#include <tovukit_io/ui/TovuProgressIndicator.h>
#include <tovukit_io/ui/kit/TovuBox.h>
#include <tovukit_io/ui/kit/TovuButton.h>
#include <tovukit_io/viewmodel/TovuKeyboardLift.h>
#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>
#include <tovukit_io/viewmodel/TovuProgressViewModel.h>
#include <tovukit_io/viewmodel/TovuSheetMetrics.h>
#include <tovukit_io/viewmodel/TovuThemeEngine.h>
#include <tovukit_io/viewmodel/TovuTranslations.h>

#include <QAccessible>
#include <QApplication>
#include <QEvent>
#include <QGraphicsOpacityEffect>
#include <QInputMethod>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScrollArea>
#include <QScroller>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace {

using Metrics = TovuSheetMetrics;

// The panel is laid out in whole points.
constexpr int contentTop = qRound(Metrics::contentTop);
constexpr int contentSide = qRound(Metrics::contentSide);
constexpr int contentBottom = qRound(Metrics::contentBottom);

// Input that reaches the sheet itself: a tap on the dimming layer, or a key or shortcut
// no control in the panel took. None of it may go on to the host below.
bool isHostInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
        return true;
    default:
        return false;
    }
}

bool isTabStop(const QWidget *widget, const QWidget *within)
{
    return (widget->focusPolicy() & Qt::TabFocus) && widget->isEnabled() && widget->isVisibleTo(within)
        && !widget->focusProxy();
}

} // namespace

TovuToasterView::TovuToasterView(std::optional<TovuSurvey> survey, QWidget *parent)
    : QWidget(parent)
    , m_survey(std::move(survey))
{
    m_keyboardLift = new TovuKeyboardLift([this](qreal offset) { setBottomOffset(offset); }, this);
    if (m_survey && m_survey->theme && m_survey->theme->transparency)
        m_dimmingAlpha = std::clamp(static_cast<qreal>(*m_survey->theme->transparency), 0.0, 1.0);
    setAttribute(Qt::WA_NoSystemBackground);
    // The library's texts may be in a right-to-left language inside a left-to-right app.
    if (TovuTranslations::layoutDirection() == Qt::RightToLeft)
        setLayoutDirection(Qt::RightToLeft);
    buildPanel();
    restyle();
    m_focusConnection = connect(qApp, &QApplication::focusChanged, this, &TovuToasterView::focusMoved);
}

TovuToasterView::~TovuToasterView()
{
    // Deleting the focused child emits focusChanged while QWidget's destructor runs,
    // when this is no longer a sheet.
    disconnect(m_focusConnection);
}

void TovuToasterView::buildPanel()
{
    const TovuThemeEngine &theme = TovuThemeEngine::shared();
    m_containerView = new TovuBox(this);
    theme.applyCornerRadius(m_containerView);

    m_handleView = new TovuBox(m_containerView);
    m_handleView->setCornerRadius(Metrics::handleCornerRadius);
    m_handleView->setFixedSize(qRound(Metrics::handleWidth), qRound(Metrics::handleHeight));

    m_skipButton = new TovuButton(tr("Skip"), m_containerView);
    m_skipButton->setBackgroundColor(Qt::transparent);
    m_skipButton->setFont(theme.font(Metrics::skipFontSize, QFont::Normal));
    const int insetH = qRound(Metrics::skipInsetHorizontal);
    const int insetV = qRound(Metrics::skipInsetVertical);
    m_skipButton->setContentInsets(QMargins(insetH, insetV, insetH, insetV));
    connect(m_skipButton, &TovuButton::clicked, this, &TovuToasterView::skipTapped);

    m_scrollArea = new QScrollArea(m_containerView);
    m_scrollArea->setFrameShape(QFrame::NoFrame);
    // Scrolled by wheel, touch or drag, as on a phone: a desktop scroll bar
    // with arrows has no place in the sheet.
    m_scrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scrollArea->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QScroller::grabGesture(m_scrollArea->viewport(), QScroller::TouchGesture);
    m_scrollArea->setWidgetResizable(true);
    m_scrollArea->viewport()->setAutoFillBackground(false);
    m_content = new QWidget;
    m_contentStack = new QVBoxLayout(m_content);
    m_contentStack->setContentsMargins(0, 0, 0, 0);
    m_contentStack->setSpacing(qRound(Metrics::contentSpacing));
    m_scrollArea->setWidget(m_content);
    m_content->setAutoFillBackground(false); // setWidget() turned it on: the panel shows through
    // A page that grows (a follow-up opening) makes the panel taller.
    m_content->installEventFilter(this);
}

// Colours are resolved again on every palette change: one left to the platform must
// follow a light → dark switch while the sheet is up.
void TovuToasterView::restyle()
{
    m_containerView->setBackgroundColor(TovuThemeEngine::shared().backgroundColor());
    m_handleView->setBackgroundColor(TovuPlatformColors::color(TovuPlatformColors::Role::gray4));
    m_skipButton->setTitleColor(TovuPlatformColors::color(TovuPlatformColors::Role::gray));
}

void TovuToasterView::present(QWidget *host)
{
    if (!host || m_host)
        return;
    m_host = host;
    m_previousFocus = host->window()->focusWidget();
    setParent(host);
    setGeometry(host->rect());
    host->installEventFilter(this);
    // Watches how the respondent moves around: keys or a pointer.
    qApp->installEventFilter(this);
    m_keyboardLift->setTracking(true);
    setTranslation(Metrics::offscreenDistance);
    show();
    raise();
    // Keys go to the sheet from now on; the sheet swallows what its controls do not take.
    setFocus(Qt::OtherFocusReason);
    // The dimming layer is there at once; only the panel moves.
    TovuMotion::animate(this, Metrics::offscreenDistance, 0, TovuMotion::durationMs(Metrics::presentSeconds),
                        TovuMotion::spring(Metrics::presentDampingRatio, Metrics::presentInitialVelocity),
                        [this](qreal value) { setTranslation(value); });
}

void TovuToasterView::dismiss()
{
    if (m_dismissing)
        return;
    m_dismissing = true;
    endInput();
    m_keyboardLift->setTracking(false);
    qApp->removeEventFilter(this);
    if (m_host)
        m_host->removeEventFilter(this);
    auto *fade = new QGraphicsOpacityEffect(this);
    setGraphicsEffect(fade);
    const qreal start = m_translation;
    TovuMotion::animate(
        this, 0, 1, TovuMotion::durationMs(Metrics::dismissSeconds), QEasingCurve(QEasingCurve::InOutQuad),
        [this, fade, start](qreal progress) {
            setTranslation(start + (Metrics::offscreenDistance - start) * progress);
            fade->setOpacity(1 - progress);
        },
        [this] {
            restoreFocus();
            hide();
            setParent(nullptr);
            deleteLater();
        });
}

void TovuToasterView::skipTapped()
{
    if (m_dismissing)
        return;
    if (onSkip)
        onSkip();
    dismiss();
}

// A closing sheet takes no more answers: taps pass through the panel to the inert
// dimming layer, and keys go to the sheet itself, which ignores them.
void TovuToasterView::endInput()
{
    m_containerView->setAttribute(Qt::WA_TransparentForMouseEvents);
    if (m_containerView->isAncestorOf(window()->focusWidget()))
        setFocus(Qt::OtherFocusReason);
}

void TovuToasterView::restoreFocus()
{
    QWidget *focus = window()->focusWidget();
    if (focus && !contains(focus))
        return; // moved on by the host already
    if (m_previousFocus && !contains(m_previousFocus))
        m_previousFocus->setFocus(Qt::OtherFocusReason);
    else if (focus)
        focus->clearFocus();
}

bool TovuToasterView::contains(const QWidget *widget) const
{
    return widget && (widget == this || isAncestorOf(widget));
}

void TovuToasterView::focusMoved(QWidget *old, QWidget *now)
{
    if (!m_host || m_dismissing || !now)
        return;
    if (contains(now)) {
        ensureFocusVisible(now);
        return;
    }
    // A sheet put up over this one takes the input; fighting it for focus would never end.
    for (QWidget *w = now; w; w = w->parentWidget()) {
        if (w != this && qobject_cast<TovuToasterView *>(w))
            return;
    }
    // The host's own widgets stay out of reach while the sheet covers them, also when a
    // click or the host's code hands one of them focus.
    if (now == m_host || m_host->isAncestorOf(now)) {
        QWidget *back = contains(old) ? old : this;
        back->setFocus(Qt::OtherFocusReason);
    }
}

void TovuToasterView::ensureFocusVisible(QWidget *focus)
{
    if (m_bottomOffset > 0 && m_content->isAncestorOf(focus))
        m_scrollArea->ensureWidgetVisible(focus);
}

bool TovuToasterView::focusNextPrevChild(bool next)
{
    if (!m_host)
        return QWidget::focusNextPrevChild(next);
    if (m_dismissing)
        return true; // keys stay with the closing sheet
    QWidget *start = window()->focusWidget();
    if (!contains(start))
        start = this;
    if (start != this && !start->isVisible()) {
        // The focused control went away with its page: rest on the sheet rather than
        // jumping to another control.
        setFocus(Qt::OtherFocusReason);
        return true;
    }
    // Tab and Backtab cycle through the sheet's controls only, never into the host.
    for (QWidget *candidate = start;;) {
        candidate = next ? candidate->nextInFocusChain() : candidate->previousInFocusChain();
        if (!candidate || candidate == start)
            return true;
        if (candidate != this && contains(candidate) && isTabStop(candidate, this)) {
            candidate->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
    }
}

void TovuToasterView::setQuestionView(QWidget *view)
{
    while (QLayoutItem *item = m_contentStack->takeAt(0)) {
        if (QWidget *old = item->widget()) {
            // The old page may be the one whose button led here: delete it later.
            old->hide();
            old->deleteLater();
        }
        delete item;
    }
    if (view)
        m_contentStack->addWidget(view);
    layoutPanel();
    // Once the layout has shown the page: showing it here would lay it out twice.
    if (view && m_host && !m_dismissing) {
        QMetaObject::invokeMethod(
            this,
            [this, page = QPointer<QWidget>(view)] {
                if (page && !m_dismissing)
                    greetPage(page);
            },
            Qt::QueuedConnection);
    }
}

void TovuToasterView::greetPage(QWidget *view)
{
    for (QWidget *candidate = view->nextInFocusChain(); candidate && candidate != view;
         candidate = candidate->nextInFocusChain()) {
        if (!view->isAncestorOf(candidate) || !isTabStop(candidate, view))
            continue;
        // A pointer user's first field is not focused: on a touch screen that would raise the keyboard.
        if (!m_keyboardNavigation && candidate->testAttribute(Qt::WA_InputMethodEnabled))
            break;
        candidate->setFocus(m_keyboardNavigation ? Qt::TabFocusReason : Qt::OtherFocusReason);
        break;
    }
    // The first text of a page is its title (or the intro's words).
    if (auto *title = view->findChild<QLabel *>(); title && QAccessible::isActive()) {
        QAccessibleEvent announce(title, QAccessible::Alert);
        QAccessible::updateAccessibility(&announce);
    }
}

void TovuToasterView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && m_host && !m_dismissing) {
        skipTapped();
        event->accept();
        return;
    }
    QWidget::keyPressEvent(event);
}

void TovuToasterView::setProgress(int current, int total)
{
    // Nothing is added to the panel (nor to what a screen reader finds) until progress shows.
    if (!m_progress && total <= 0)
        return;
    if (!m_progress) {
        m_progress = new TovuProgressViewModel(this);
        m_progressIndicator = new TovuProgressIndicator(m_progress, m_containerView);
    }
    m_progress->setProgress(current, total);
    layoutPanel();
}

void TovuToasterView::keyboardWillShow(const QRectF &keyboardFrame, int durationMs)
{
    m_keyboardLift->keyboardWillShow(keyboardFrame, durationMs);
}

void TovuToasterView::keyboardWillHide(int durationMs)
{
    m_keyboardLift->keyboardWillHide(durationMs);
}

void TovuToasterView::setTranslation(qreal translation)
{
    m_translation = translation;
    layoutPanel();
}

void TovuToasterView::setBottomOffset(qreal offset)
{
    m_bottomOffset = offset;
    layoutPanel();
    ensureFocusVisible(window()->focusWidget());
}

int TovuToasterView::panelHeight() const
{
    const int contentWidth = std::max(0, width() - 2 * contentSide);
    const QLayout *layout = m_contentStack;
    const int contentHeight
        = layout->hasHeightForWidth() ? layout->totalHeightForWidth(contentWidth) : layout->totalSizeHint().height();
    const int wanted = contentTop + contentHeight + contentBottom;
    int limit = static_cast<int>(height() * Metrics::maxHeightRatio);
    // Lifted by the keyboard, the panel gets shorter rather than rising above the host's top.
    if (m_bottomOffset > 0)
        limit = std::min(limit, height() - static_cast<int>(m_bottomOffset) - qRound(Metrics::keyboardTopMargin));
    return std::clamp(wanted, 0, std::max(0, limit));
}

void TovuToasterView::layoutPanel()
{
    const int panelWidth = width();
    const int panel = panelHeight();
    const int top = height() - panel - static_cast<int>(m_bottomOffset) + static_cast<int>(m_translation);
    m_containerView->setGeometry(0, top, panelWidth, panel);

    m_handleView->move((panelWidth - m_handleView->width()) / 2, qRound(Metrics::handleTop));
    m_skipButton->adjustSize();
    const int skipTrailing = qRound(Metrics::skipTrailing);
    const int skipX = isRightToLeft() ? skipTrailing : panelWidth - skipTrailing - m_skipButton->width();
    m_skipButton->move(skipX, qRound(Metrics::skipTop));
    if (m_progressIndicator) {
        const int leading = qRound(Metrics::progressLeading);
        const int progressX = isRightToLeft() ? panelWidth - leading - m_progressIndicator->width() : leading;
        m_progressIndicator->move(progressX, qRound(Metrics::progressTop));
    }
    m_scrollArea->setGeometry(contentSide, contentTop, std::max(0, panelWidth - 2 * contentSide),
                              std::max(0, panel - contentTop - contentBottom));
    m_skipButton->raise();
}

bool TovuToasterView::event(QEvent *event)
{
    const bool handled = QWidget::event(event);
    if (!isHostInput(event->type()))
        return handled;
    // Tab has been handled above; everything else that got this far ends here.
    event->accept();
    return true;
}

void TovuToasterView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QColor dim(Qt::black);
    dim.setAlphaF(static_cast<float>(m_dimmingAlpha));
    painter.fillRect(rect(), dim);
}

void TovuToasterView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    layoutPanel();
}

void TovuToasterView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange)
        restyle();
}

bool TovuToasterView::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && watched->isWidgetType() && contains(static_cast<QWidget *>(watched)))
        m_keyboardNavigation = true;
    else if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::TouchBegin)
        m_keyboardNavigation = false;
    if (watched == m_host && event->type() == QEvent::Resize)
        setGeometry(m_host->rect());
    else if (watched == m_content && event->type() == QEvent::LayoutRequest)
        layoutPanel();
    return QWidget::eventFilter(watched, event);
}
