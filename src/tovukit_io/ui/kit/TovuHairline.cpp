#include <tovukit_io/ui/kit/TovuHairline.h>

#include <tovukit_io/viewmodel/TovuPlatformColors.h>

#include <QEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

TovuHairline::TovuHairline(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_NoSystemBackground);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFixedHeight(1);
}

qreal TovuHairline::thickness() const
{
    return m_thickness;
}

void TovuHairline::setThickness(qreal thickness)
{
    thickness = std::isfinite(thickness) ? std::clamp<qreal>(thickness, 0, 1000) : 0;
    if (m_thickness == thickness)
        return;
    m_thickness = thickness;
    setFixedHeight(static_cast<int>(std::ceil(thickness)));
    update();
}

QColor TovuHairline::color() const
{
    return m_color.isValid() ? m_color : TovuPlatformColors::color(TovuPlatformColors::Role::gray5);
}

void TovuHairline::setColor(const QColor &color)
{
    if (m_color == color)
        return;
    m_color = color;
    update();
}

QSize TovuHairline::sizeHint() const
{
    return QSize(0, static_cast<int>(std::ceil(m_thickness)));
}

void TovuHairline::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // From the top edge, so a half-point line covers one whole device pixel at 2x
    // instead of two half ones.
    painter.fillRect(QRectF(0, 0, width(), m_thickness), color());
}

void TovuHairline::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange)
        update();
}
