#include <tovukit_io/ui/kit/TovuScrollStrip.h>

#include <QAbstractButton>
#include <QApplication>
#include <QChildEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QScroller>
#include <QWheelEvent>

#include <cmath>
#include <utility>

TovuScrollStrip::TovuScrollStrip(QWidget *parent)
    : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidgetResizable(true);
    setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    QScroller::grabGesture(viewport(), QScroller::TouchGesture);
}

TovuScrollStrip::~TovuScrollStrip() = default;

void TovuScrollStrip::setWidget(QWidget *widget)
{
    if (!widget)
        return;
    QScrollArea::setWidget(widget);
    // QScrollArea paints the content's background; the strip shows what lies behind it.
    widget->setAutoFillBackground(false);
    watch(widget);
}

void TovuScrollStrip::watch(QObject *object)
{
    if (!object->isWidgetType())
        return;
    object->removeEventFilter(this); // never twice
    object->installEventFilter(this);
    for (QObject *child : object->children())
        watch(child);
}

void TovuScrollStrip::wheelEvent(QWheelEvent *event)
{
    // Trackpads give pixels; wheels give eighths of a degree, 120 to a notch.
    const bool pixels = !event->pixelDelta().isNull();
    const QPoint delta = pixels ? event->pixelDelta() : event->angleDelta();
    int dx = delta.x();
    if (dx == 0 && event->modifiers().testFlag(Qt::ShiftModifier))
        dx = delta.y();
    if (dx == 0) {
        event->ignore(); // a vertical turn belongs to the sheet
        return;
    }
    QScrollBar *bar = horizontalScrollBar();
    const int step = pixels ? dx : dx * bar->singleStep() * QApplication::wheelScrollLines() / 120;
    bar->setValue(bar->value() - step);
    event->accept();
}

bool TovuScrollStrip::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ChildAdded) {
        QObject *child = static_cast<QChildEvent *>(event)->child();
        if (child)
            watch(child);
    }
    if (filterMouse(watched, event))
        return true;
    return QScrollArea::eventFilter(watched, event);
}

bool TovuScrollStrip::filterMouse(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        if (mouse->button() != Qt::LeftButton)
            return false;
        // The same press reaches each ancestor a child ignored it in: keep the first.
        if (!m_drag.active || m_drag.pressPosition != mouse->globalPosition())
            m_drag = Drag{true, false, mouse->globalPosition(), horizontalScrollBar()->value(), {}};
        if (!m_drag.button)
            m_drag.button = qobject_cast<QAbstractButton *>(watched);
        return false;
    }
    case QEvent::MouseMove: {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        if (!m_drag.active || !mouse->buttons().testFlag(Qt::LeftButton))
            return false;
        const qreal dx = mouse->globalPosition().x() - m_drag.pressPosition.x();
        if (!m_drag.scrolling && std::abs(dx) > QApplication::startDragDistance()) {
            m_drag.scrolling = true;
            if (m_drag.button)
                m_drag.button->setDown(false); // the press is a drag now, not a tap
        }
        if (!m_drag.scrolling)
            return false;
        horizontalScrollBar()->setValue(m_drag.startValue - static_cast<int>(std::lround(dx)));
        return true;
    }
    case QEvent::MouseButtonRelease: {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        if (mouse->button() != Qt::LeftButton || !m_drag.active)
            return false;
        // The end of a drag is no click: the button was already told it is not down.
        return std::exchange(m_drag, Drag{}).scrolling;
    }
    default:
        return false;
    }
}
