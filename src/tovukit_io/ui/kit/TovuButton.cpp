#include <tovukit_io/ui/kit/TovuButton.h>

#include "TovuButtonAccessible.h"
#include "TovuButtonKeys.h"
#include "TovuChoiceMark.h"

#include <tovukit_io/graphics/TovuEmoji.h>
#include <tovukit_io/graphics/TovuPainting.h>
#include <tovukit_io/graphics/TovuSymbol.h>
#include <tovukit_io/graphics/TovuTextMetrics.h>
#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/viewmodel/TovuPageMetrics.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>

#include "TovuButtonScaleEffect.h"
#include "TovuKitAnimator.h"

#include <QEvent>
#include <QFocusEvent>
#include <QFontMetrics>
#include <QKeyEvent>
#include <QKeySequence>
#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using Metrics = TovuPageMetrics;

// Room kept between the accessory and the title.
constexpr qreal accessoryGap = 10;

} // namespace

TovuButton::TovuButton(const QString &title, QWidget *parent)
    : QAbstractButton(parent)
    , m_accessoryInset(Metrics::markLeading)
{
    TovuButtonAccessible::install();
    // Corners outside the radius stay transparent, also when the button is grabbed alone.
    setAttribute(Qt::WA_NoSystemBackground);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum, QSizePolicy::PushButton);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    setText(title);
}

TovuButton::~TovuButton()
{
    // The effect reads the button's scale; it must go while this is still a TovuButton.
    if (dynamic_cast<TovuButtonScaleEffect *>(graphicsEffect()))
        setGraphicsEffect(nullptr);
}

void TovuButton::setText(const QString &title)
{
    QAbstractButton::setText(title);
    syncTitle();
}

void TovuButton::syncTitle()
{
    const QString title = text();
    if (title == m_syncedTitle)
        return;
    m_syncedTitle = title;
    invalidateSizeCache();
    // Survey text is shown literally: an "&" in it must not become a keyboard shortcut.
    if (!shortcut().isEmpty() && shortcut() == QKeySequence::mnemonic(title))
        setShortcut(QKeySequence());
    // Follow the title unless someone chose another accessible name.
    if (accessibleName().isEmpty() || accessibleName() == m_autoAccessibleName) {
        m_autoAccessibleName = title;
        setAccessibleName(title);
    }
}

QColor TovuButton::backgroundColor() const
{
    return m_look.resolvedBackground();
}

void TovuButton::setBackgroundColor(const QColor &color)
{
    if (m_look.setBackground(color))
        update();
}

QColor TovuButton::borderColor() const
{
    return m_look.resolvedBorder();
}

void TovuButton::setBorderColor(const QColor &color)
{
    if (m_look.setBorder(color))
        update();
}

qreal TovuButton::borderWidth() const
{
    return m_look.borderWidth;
}

void TovuButton::setBorderWidth(qreal width)
{
    if (m_look.setBorderWidth(width))
        update();
}

qreal TovuButton::cornerRadius() const
{
    return m_look.cornerRadius;
}

void TovuButton::setCornerRadius(qreal radius)
{
    if (!m_look.setCornerRadius(radius))
        return;
    update();
}

QColor TovuButton::titleColor() const
{
    return m_titleColor.isValid() ? m_titleColor : TovuPlatformColors::color(TovuPlatformColors::Role::label);
}

void TovuButton::setTitleColor(const QColor &color)
{
    if (m_titleColor == color)
        return;
    m_titleColor = color;
    update();
}

Qt::Alignment TovuButton::titleAlignment() const
{
    return m_titleAlignment;
}

void TovuButton::setTitleAlignment(Qt::Alignment alignment)
{
    alignment &= Qt::AlignHorizontal_Mask;
    if (m_titleAlignment == alignment)
        return;
    m_titleAlignment = alignment;
    update();
}

QMargins TovuButton::contentInsets() const
{
    return m_contentInsets;
}

void TovuButton::setContentInsets(const QMargins &insets)
{
    if (m_contentInsets == insets)
        return;
    m_contentInsets = insets;
    invalidateSizeCache();
    update();
}

TovuButton::Accessory TovuButton::accessory() const
{
    return m_accessory;
}

void TovuButton::setAccessory(Accessory accessory)
{
    if (m_accessory == accessory)
        return;
    m_accessory = accessory;
    invalidateSizeCache();
    update();
}

QColor TovuButton::accessoryColor() const
{
    return m_accessoryColor.isValid() ? m_accessoryColor : TovuPlatformColors::color(TovuPlatformColors::Role::blue);
}

void TovuButton::setAccessoryColor(const QColor &color)
{
    if (m_accessoryColor == color)
        return;
    m_accessoryColor = color;
    update();
}

qreal TovuButton::accessorySize() const
{
    if (m_accessorySize >= 0)
        return m_accessorySize;
    return m_accessory == Accessory::checkbox ? Metrics::checkboxSize : Metrics::radioSize;
}

void TovuButton::setAccessorySize(qreal size)
{
    size = std::isfinite(size) ? std::max<qreal>(0, size) : 0;
    if (m_accessorySize == size)
        return;
    m_accessorySize = size;
    invalidateSizeCache();
    update();
}

qreal TovuButton::accessoryInset() const
{
    return m_accessoryInset;
}

void TovuButton::setAccessoryInset(qreal inset)
{
    inset = std::isfinite(inset) ? inset : 0;
    if (m_accessoryInset == inset)
        return;
    m_accessoryInset = inset;
    invalidateSizeCache();
    update();
}

qreal TovuButton::scale() const
{
    return m_scale;
}

void TovuButton::setScale(qreal scale)
{
    if (!std::isfinite(scale))
        return;
    scale = std::clamp<qreal>(scale, 0, 10);
    if (m_scale == scale)
        return;
    // What was drawn beyond the bounds belongs to the parent, which Qt does not repaint
    // when the drawing shrinks back.
    if (m_scale > 1 && parentWidget()) {
        const QPointF centre = QRectF(geometry()).center();
        const QSizeF size = QSizeF(this->size()) * m_scale;
        parentWidget()->update(
            QRectF(centre - QPointF(size.width() / 2, size.height() / 2), size).toAlignedRect().adjusted(-1, -1, 1, 1));
    }
    m_scale = scale;
    updateScaleEffect();
    update();
}

void TovuButton::tapScale(qreal to, qreal seconds)
{
    if (!m_tapAnimator)
        m_tapAnimator = std::make_unique<TovuKitAnimator>(this, [this](qreal value) { setScale(value); });
    if (!std::isfinite(to))
        to = 1;
    m_tapAnimator->run({m_scale, to, 1.0}, seconds, TovuMotion::easeOut());
}

bool TovuButton::isTapScaling() const
{
    return m_tapAnimator && m_tapAnimator->isRunning();
}

qreal TovuButton::opacity() const
{
    return m_opacity;
}

void TovuButton::setOpacity(qreal opacity)
{
    if (!std::isfinite(opacity))
        return;
    opacity = std::clamp<qreal>(opacity, 0, 1);
    if (m_opacity == opacity)
        return;
    m_opacity = opacity;
    update();
}

int TovuButton::tag() const
{
    return m_tag;
}

void TovuButton::setTag(int tag)
{
    m_tag = tag;
}

void TovuButton::updateScaleEffect()
{
    auto *effect = dynamic_cast<TovuButtonScaleEffect *>(graphicsEffect());
    if (m_scale > 1) {
        if (effect)
            effect->refresh();
        else if (!graphicsEffect()) // never replace an effect a host set
            setGraphicsEffect(new TovuButtonScaleEffect(this));
    } else if (effect) {
        setGraphicsEffect(nullptr);
    }
}

QMargins TovuButton::visualInsets() const
{
    QMargins insets = m_contentInsets;
    if (m_accessory != Accessory::none) {
        const int needed = static_cast<int>(std::ceil(m_accessoryInset + accessorySize() + accessoryGap));
        insets.setLeft(std::max(insets.left(), needed));
    }
    if (layoutDirection() == Qt::RightToLeft)
        return QMargins(insets.right(), insets.top(), insets.left(), insets.bottom());
    return insets;
}

int TovuButton::textFlags() const
{
    const Qt::Alignment horizontal = m_titleAlignment ? m_titleAlignment : Qt::AlignHCenter;
    return static_cast<int>(QStyle::visualAlignment(layoutDirection(), horizontal)) | Qt::AlignVCenter
        | Qt::TextWordWrap;
}

int TovuButton::textHeight(int width) const
{
    const QFontMetrics metrics(font());
    if (text().isEmpty())
        return metrics.height();
    const QMargins insets = visualInsets();
    const int available = std::max(1, width - insets.left() - insets.right());
    const QRect area(0, 0, available, std::numeric_limits<int>::max() / 4);
    return TovuTextMetrics::boundingRect(font(), *this, area, textFlags(), text()).height();
}

void TovuButton::invalidateSizeCache()
{
    m_cachedTextWidth = -1;
    m_cachedHeightWidth = -1;
    updateGeometry();
}

int TovuButton::heightForWidth(int width) const
{
    if (width == m_cachedHeightWidth)
        return m_cachedHeight;
    const QMargins insets = visualInsets();
    int content = textHeight(width);
    if (m_accessory != Accessory::none)
        content = std::max(content, static_cast<int>(std::ceil(accessorySize())));
    m_cachedHeightWidth = width;
    m_cachedHeight = content + insets.top() + insets.bottom();
    return m_cachedHeight;
}

bool TovuButton::hasHeightForWidth() const
{
    // A button of fixed height has nothing to ask its width about.
    return minimumHeight() != maximumHeight();
}

QSize TovuButton::sizeHint() const
{
    ensurePolished();
    if (m_cachedTextWidth < 0) {
        // One line per paragraph: wrapping only starts when the layout gives less.
        m_cachedTextWidth = text().isEmpty()
            ? 0
            : TovuTextMetrics::boundingRect(font(), *this, QRect(), Qt::AlignLeft, text()).width() + 1;
    }
    const QMargins insets = visualInsets();
    const int width = insets.left() + insets.right() + m_cachedTextWidth;
    return QSize(width, heightForWidth(width));
}

QSize TovuButton::minimumSizeHint() const
{
    ensurePolished();
    const QFontMetrics metrics(font());
    const QMargins insets = visualInsets();
    const int hint = sizeHint().width() - insets.left() - insets.right();
    const int width = insets.left() + insets.right() + std::min(hint, metrics.averageCharWidth() * 8);
    return QSize(width, sizeHint().height());
}

void TovuButton::paintEvent(QPaintEvent *)
{
    // The title may have been set through QAbstractButton or the property system.
    syncTitle();
    QPainter painter(this);
    paintContent(painter);
}

void TovuButton::paintContent(QPainter &painter)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setOpacity(isEnabled() ? m_opacity : m_opacity * 0.5);
    const QRectF bounds = rect();
    if (m_scale != 1) {
        painter.translate(bounds.center());
        painter.scale(m_scale, m_scale);
        painter.translate(-bounds.center());
    }
    m_look.paint(painter, bounds);
    if (m_accessory != Accessory::none)
        paintAccessory(painter, bounds);
    painter.save();
    paintLabel(painter, bounds.marginsRemoved(QMarginsF(visualInsets())));
    painter.restore();

    // Keyboard users need to see where they are; a pointer press shows no ring.
    if (hasFocus() && m_keyboardFocus) {
        const QColor system = TovuPlatformColors::color(TovuPlatformColors::Role::systemBackground);
        const bool filled = backgroundColor().alpha() == 255 && backgroundColor() != system;
        TovuPainting::paintFocusRing(painter, bounds, TovuPainting::effectiveRadius(bounds.size(), m_look.cornerRadius),
                                     TovuPageMetrics::focusRingWidth, filled, accessoryColor(), system);
    }
}

void TovuButton::paintLabel(QPainter &painter, const QRectF &contentRect)
{
    if (text().isEmpty())
        return;
    painter.setLayoutDirection(layoutDirection());
    if (TovuEmoji::isEmojiFont(font())) {
        TovuEmoji::drawText(painter, contentRect, textFlags(), text(), font(), titleColor());
        return;
    }
    painter.setFont(font());
    painter.setPen(titleColor());
    painter.drawText(contentRect, textFlags(), text());
}

void TovuButton::paintAccessory(QPainter &painter, const QRectF &bounds)
{
    const qreal side = accessorySize();
    if (side <= 0)
        return;
    const qreal x = layoutDirection() == Qt::RightToLeft ? bounds.right() - m_accessoryInset - side
                                                         : bounds.left() + m_accessoryInset;
    const QRectF mark(x, bounds.center().y() - side / 2, side, side);
    TovuChoiceMark::paint(painter, mark, m_accessory == Accessory::radio, isChecked(), accessoryColor());
}

void TovuButton::changeEvent(QEvent *event)
{
    QAbstractButton::changeEvent(event);
    switch (event->type()) {
    case QEvent::LayoutDirectionChange:
    case QEvent::FontChange:
    case QEvent::StyleChange:
        invalidateSizeCache();
        update();
        break;
    case QEvent::PaletteChange:
    case QEvent::ApplicationPaletteChange:
        update();
        break;
    default:
        break;
    }
}

void TovuButton::focusInEvent(QFocusEvent *event)
{
    m_keyboardFocus = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason
        || event->reason() == Qt::ShortcutFocusReason;
    QAbstractButton::focusInEvent(event);
    update();
}

void TovuButton::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!event->isAutoRepeat())
            click();
        event->accept();
        return;
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (TovuButton *next = TovuButtonKeys::neighbour(*this, event->key()))
            next->setFocus(Qt::TabFocusReason);
        event->accept();
        return;
    default:
        QAbstractButton::keyPressEvent(event);
    }
}

void TovuButton::focusOutEvent(QFocusEvent *event)
{
    m_keyboardFocus = false;
    QAbstractButton::focusOutEvent(event);
    update();
}
