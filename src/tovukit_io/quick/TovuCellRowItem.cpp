#include <tovukit_io/quick/TovuCellRowItem.h>

#include "TovuCellRowAccessible.h"

#include <tovukit_io/graphics/TovuPainting.h>
#include <tovukit_io/quick/TovuQuickStyle.h>
#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/viewmodel/TovuPageMetrics.h>
#include <tovukit_io/viewmodel/TovuThemeEngine.h>

#include <QGuiApplication>
#include <QPainter>
#include <QStyleHints>

#include <cmath>

TovuCellRowItem::TovuCellRowItem(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    TovuCellRowAccessible::install();
    setAntialiasing(true);
    setAcceptedMouseButtons(Qt::LeftButton);
    setActiveFocusOnTab(true);
}

TovuCellRowItem::~TovuCellRowItem() = default;

QVariantList TovuCellRowItem::columnWidths() const
{
    QVariantList widths;
    for (const qreal width : m_requestedWidths)
        widths.append(width);
    return widths;
}

void TovuCellRowItem::setColumnWidths(const QVariantList &widths)
{
    // A script's array of numbers, whether it holds ints or reals.
    QList<qreal> numbers;
    for (const QVariant &width : widths)
        numbers.append(width.toReal());
    if (numbers == m_requestedWidths)
        return;
    m_requestedWidths = numbers;
    if (m_sharedCount <= 0)
        setWidths(numbers);
}

void TovuCellRowItem::setSharedCount(int count)
{
    if (m_sharedCount == count)
        return;
    m_sharedCount = count;
    if (count <= 0) {
        setWidths(m_requestedWidths);
        return;
    }
    const auto available = static_cast<int>(std::max(0.0, std::floor(width() - (count - 1) * m_spacing)));
    QList<qreal> widths;
    for (int index = 0; index < count; ++index)
        widths.append(available / count + (index < available % count ? 1 : 0));
    setWidths(widths);
}

void TovuCellRowItem::setWidths(QList<qreal> widths)
{
    if (widths == m_widths)
        return;
    m_widths = std::move(widths);
    m_scales = QList<qreal>(m_widths.size(), 1);
    if (m_current >= cellCount())
        setCurrentIndex(cellCount() - 1);
    relayout();
}

void TovuCellRowItem::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickPaintedItem::geometryChange(newGeometry, oldGeometry);
    if (m_sharedCount > 0 && newGeometry.width() != oldGeometry.width()) {
        const int count = std::exchange(m_sharedCount, 0);
        setSharedCount(count);
    } else if (newGeometry.width() != oldGeometry.width()) {
        setScrollOffset(m_scroll);
        update();
    }
}

void TovuCellRowItem::setSpacing(qreal spacing)
{
    if (m_spacing == spacing)
        return;
    m_spacing = spacing;
    if (m_sharedCount > 0) {
        const int count = std::exchange(m_sharedCount, 0);
        setSharedCount(count);
    }
    relayout();
}

void TovuCellRowItem::setCellTop(qreal top)
{
    if (m_cellTop == top)
        return;
    m_cellTop = top;
    relayout();
}

void TovuCellRowItem::setCellHeight(qreal height)
{
    if (m_cellHeight == height)
        return;
    m_cellHeight = height;
    relayout();
}

void TovuCellRowItem::setMirrored(bool mirrored)
{
    if (m_mirrored == mirrored)
        return;
    m_mirrored = mirrored;
    relayout();
}

void TovuCellRowItem::relayout()
{
    m_offsets.clear();
    qreal x = 0;
    for (const qreal width : std::as_const(m_widths)) {
        m_offsets.append(x);
        x += width + m_spacing;
    }
    if (m_sharedCount <= 0)
        setImplicitWidth(m_widths.isEmpty() ? 0 : x - m_spacing);
    setImplicitHeight(m_cellTop + m_cellHeight);
    setScrollOffset(m_scroll);
    update();
    Q_EMIT layoutChanged();
}

qreal TovuCellRowItem::maximumScrollOffset() const
{
    return std::max(0.0, implicitWidth() - width());
}

void TovuCellRowItem::setScrollOffset(qreal offset)
{
    offset = std::clamp(offset, 0.0, maximumScrollOffset());
    if (m_scroll == offset)
        return;
    m_scroll = offset;
    update();
    Q_EMIT scrollOffsetChanged();
}

QRectF TovuCellRowItem::cellRect(int index) const
{
    if (index < 0 || index >= cellCount())
        return {};
    const qreal width = m_widths[index];
    // Scrolled from the first column's end: the left, or the right one when mirrored.
    const qreal fromLeading = m_offsets[index] - m_scroll;
    const qreal left = m_mirrored ? this->width() - fromLeading - width : fromLeading;
    return QRectF(left, m_cellTop, width, m_cellHeight);
}

int TovuCellRowItem::cellAt(const QPointF &point) const
{
    for (int index = 0; index < cellCount(); ++index) {
        if (cellRect(index).contains(point))
            return index;
    }
    return -1;
}

void TovuCellRowItem::bounce(int index, qreal scale, qreal seconds)
{
    if (index < 0 || index >= cellCount())
        return;
    const auto apply = [this, index](qreal value) {
        if (index < m_scales.size())
            m_scales[index] = value;
        update();
    };
    const int duration = TovuMotion::durationMs(seconds);
    // Up, then back down from wherever it got to.
    TovuMotion::animate(this, m_scales[index], scale, duration, TovuMotion::easeOut(), apply,
                        [this, index, duration, apply] {
                            if (index < m_scales.size())
                                TovuMotion::animate(this, m_scales[index], 1, duration, TovuMotion::easeOut(), apply);
                        });
}

void TovuCellRowItem::tap(int index)
{
    if (index < 0 || index >= cellCount())
        return;
    setCurrentIndex(index);
    cellTapped(index);
    Q_EMIT tapped(index);
}

QString TovuCellRowItem::cellDescription(int) const
{
    return {};
}

bool TovuCellRowItem::isCellCheckable() const
{
    return false;
}

bool TovuCellRowItem::isCellChecked(int) const
{
    return false;
}

void TovuCellRowItem::paintRow(QPainter &) { }

void TovuCellRowItem::cellTapped(int) { }

bool TovuCellRowItem::isCellFilled(int) const
{
    return false;
}

void TovuCellRowItem::paintFocusRing(QPainter &painter)
{
    if (!hasActiveFocus() || !TovuQuickStyle::keyboardNavigation() || m_current < 0)
        return;
    TovuPainting::paintFocusRing(painter, cellRect(m_current), TovuPageMetrics::scoreCornerRadius,
                                 TovuPageMetrics::focusRingWidth, isCellFilled(m_current),
                                 TovuThemeEngine::shared().primaryColor(), TovuThemeEngine::shared().backgroundColor());
}

void TovuCellRowItem::cellsChanged()
{
    update();
    TovuCellRowAccessible::notifyStateChanged(this);
}

void TovuCellRowItem::paint(QPainter *painter)
{
    for (int index = 0; index < cellCount(); ++index) {
        QRectF rect = cellRect(index);
        if (rect.right() < 0 || rect.left() > width())
            continue; // scrolled out of sight
        const qreal scale = m_scales.value(index, 1);
        if (scale != 1) {
            const QPointF centre = rect.center();
            rect = QRectF(centre - QPointF(rect.width(), rect.height()) * scale / 2, rect.size() * scale);
        }
        paintCell(*painter, index, rect);
    }
    paintRow(*painter);
    paintFocusRing(*painter);
}

void TovuCellRowItem::scrollToShow(int index)
{
    const QRectF rect = cellRect(index);
    if (rect.isNull())
        return;
    // Towards the trailing end is a larger offset: left to right that is rightwards.
    const qreal past = m_mirrored ? -rect.left() : rect.right() - width();
    const qreal before = m_mirrored ? rect.right() - width() : -rect.left();
    if (past > 0)
        setScrollOffset(m_scroll + past);
    else if (before > 0)
        setScrollOffset(m_scroll - before);
}

void TovuCellRowItem::setCurrentIndex(int index)
{
    if (m_current == index)
        return;
    m_current = index;
    scrollToShow(index);
    Q_EMIT currentIndexChanged();
    if (hasActiveFocus())
        TovuCellRowAccessible::notifyFocus(this, index);
}

void TovuCellRowItem::mousePressEvent(QMouseEvent *event)
{
    m_pressed = cellAt(event->position());
    m_pressPoint = event->position();
    m_pressScroll = m_scroll;
    m_dragging = false;
    if (m_pressed < 0 && maximumScrollOffset() <= 0) {
        event->ignore();
        return;
    }
    if (m_pressed >= 0)
        forceActiveFocus(Qt::MouseFocusReason);
    event->accept();
}

void TovuCellRowItem::mouseDoubleClickEvent(QMouseEvent *event)
{
    // Two quick taps are two taps: the second press comes as a double click.
    mousePressEvent(event);
}

void TovuCellRowItem::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_pressPoint || maximumScrollOffset() <= 0)
        return;
    const qreal dx = event->position().x() - m_pressPoint->x();
    if (!m_dragging && std::abs(dx) < QGuiApplication::styleHints()->startDragDistance())
        return;
    // A drag scrolls and takes the press away from the cell under it.
    m_dragging = true;
    m_pressed = -1;
    setKeepMouseGrab(true);
    setScrollOffset(m_pressScroll + (m_mirrored ? dx : -dx));
    event->accept();
}

void TovuCellRowItem::mouseReleaseEvent(QMouseEvent *event)
{
    const int pressed = std::exchange(m_pressed, -1);
    m_pressPoint.reset();
    m_dragging = false;
    setKeepMouseGrab(false);
    event->accept();
    if (pressed >= 0 && cellAt(event->position()) == pressed)
        tap(pressed);
}

void TovuCellRowItem::mouseUngrabEvent()
{
    // The sheet took the press for a scroll of its own: no tap.
    m_pressed = -1;
    m_pressPoint.reset();
    m_dragging = false;
}

void TovuCellRowItem::wheelEvent(QWheelEvent *event)
{
    // Sideways turns scroll the cells; the rest goes on to the sheet.
    const QPoint delta = event->pixelDelta().isNull() ? event->angleDelta() / 8 : event->pixelDelta();
    if (delta.x() == 0 || maximumScrollOffset() <= 0) {
        event->ignore();
        return;
    }
    setScrollOffset(m_scroll + (m_mirrored ? delta.x() : -delta.x()));
    event->accept();
}

void TovuCellRowItem::keyPressEvent(QKeyEvent *event)
{
    const int count = cellCount();
    const int current = std::max(0, m_current);
    // Arrows follow what the respondent sees: right to left, Left goes to the next cell.
    const int forward = m_mirrored ? -1 : 1;
    switch (event->key()) {
    case Qt::Key_Left:
        setCurrentIndex(std::clamp(current - forward, 0, count - 1));
        break;
    case Qt::Key_Right:
        setCurrentIndex(std::clamp(current + forward, 0, count - 1));
        break;
    case Qt::Key_Home:
        setCurrentIndex(0);
        break;
    case Qt::Key_End:
        setCurrentIndex(count - 1);
        break;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        tap(current);
        break;
    default:
        event->ignore();
        return;
    }
    event->accept();
    update();
}

void TovuCellRowItem::focusOutEvent(QFocusEvent *event)
{
    QQuickPaintedItem::focusOutEvent(event);
    update();
}

void TovuCellRowItem::focusInEvent(QFocusEvent *event)
{
    QQuickPaintedItem::focusInEvent(event);
    update();
    if (m_current < 0 && cellCount() > 0)
        setCurrentIndex(0);
    TovuCellRowAccessible::notifyFocus(this, m_current);
}
