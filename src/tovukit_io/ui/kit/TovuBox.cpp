#include <tovukit_io/ui/kit/TovuBox.h>

#include <tovukit_io/graphics/TovuPainting.h>
#include <tovukit_io/graphics/TovuShadow.h>

#include <QEvent>
#include <QGraphicsEffect>
#include <QPaintDevice>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

// Draws the box's shadow behind it, outside its bounds, and the box itself unchanged.
// The shadow follows the rounded shape rather than the painted pixels, so it costs one
// cached image per size instead of rendering the box's children offscreen.
class ShadowEffect : public QGraphicsEffect
{
public:
    explicit ShadowEffect(TovuBox *box)
        : QGraphicsEffect(box)
        , m_box(box)
    { }

    QRectF boundingRectFor(const QRectF &rect) const override
    {
        return rect.united(TovuShadow::shadowRect(rect, m_box->shadowOffset(), m_box->shadowBlurRadius()));
    }

    // Size and offset of the shadow may have changed.
    void refresh()
    {
        updateBoundingRect();
        update();
    }

protected:
    void draw(QPainter *painter) override
    {
        TovuShadow::paint(*painter, sourceBoundingRect(Qt::LogicalCoordinates), m_box->cornerRadius(),
                          m_box->shadowOffset(), m_box->shadowBlurRadius(), m_box->shadowColor());
        // Rendered into a device of another pixel ratio than the screen's (a 2× grab on a
        // 1× screen), Qt draws the source at a scaled offset; painting the box through the
        // painter keeps it in place.
        if (painter->device() && painter->device()->devicePixelRatioF() != m_box->devicePixelRatioF())
            m_box->render(painter, QPoint(), QRegion(), QWidget::DrawChildren);
        else
            drawSource(painter);
    }

private:
    TovuBox *m_box;
};

} // namespace

TovuBox::TovuBox(QWidget *parent)
    : QWidget(parent)
{
    // The box paints its own background; its corners show whatever lies below, also
    // when it is grabbed on its own.
    setAttribute(Qt::WA_NoSystemBackground);
}

TovuBox::~TovuBox()
{
    // QWidget's destructor would delete the effect when this is no longer a TovuBox,
    // and the effect asks the box for its shadow on the way out.
    if (dynamic_cast<ShadowEffect *>(graphicsEffect()))
        setGraphicsEffect(nullptr);
}

QColor TovuBox::backgroundColor() const
{
    return m_look.resolvedBackground();
}

void TovuBox::setBackgroundColor(const QColor &color)
{
    if (m_look.setBackground(color))
        update();
}

QColor TovuBox::borderColor() const
{
    return m_look.resolvedBorder();
}

void TovuBox::setBorderColor(const QColor &color)
{
    if (m_look.setBorder(color))
        update();
}

qreal TovuBox::borderWidth() const
{
    return m_look.borderWidth;
}

void TovuBox::setBorderWidth(qreal width)
{
    if (m_look.setBorderWidth(width))
        update();
}

qreal TovuBox::cornerRadius() const
{
    return m_look.cornerRadius;
}

void TovuBox::setCornerRadius(qreal radius)
{
    if (!m_look.setCornerRadius(radius))
        return;
    updateMask();
    updateShadow();
    update();
}

bool TovuBox::clipsToBounds() const
{
    return m_clipsToBounds;
}

void TovuBox::setClipsToBounds(bool clips)
{
    if (m_clipsToBounds == clips)
        return;
    m_clipsToBounds = clips;
    updateMask();
    update();
}

bool TovuBox::hasShadow() const
{
    return m_hasShadow;
}

void TovuBox::setHasShadow(bool shadow)
{
    if (m_hasShadow == shadow)
        return;
    m_hasShadow = shadow;
    // The widget owns its effect and deletes the one it replaces; an effect a host set
    // itself is left alone when the shadow goes.
    if (shadow)
        setGraphicsEffect(new ShadowEffect(this));
    else if (dynamic_cast<ShadowEffect *>(graphicsEffect()))
        setGraphicsEffect(nullptr);
    update();
}

QColor TovuBox::shadowColor() const
{
    return m_shadowColor;
}

void TovuBox::setShadowColor(const QColor &color)
{
    if (m_shadowColor == color)
        return;
    m_shadowColor = color;
    updateShadow();
}

QPointF TovuBox::shadowOffset() const
{
    return m_shadowOffset;
}

void TovuBox::setShadowOffset(const QPointF &offset)
{
    if (m_shadowOffset == offset)
        return;
    m_shadowOffset = offset;
    updateShadow();
}

qreal TovuBox::shadowBlurRadius() const
{
    return m_shadowBlurRadius;
}

void TovuBox::setShadowBlurRadius(qreal radius)
{
    radius = std::isfinite(radius) ? std::max<qreal>(0, radius) : 0;
    if (m_shadowBlurRadius == radius)
        return;
    m_shadowBlurRadius = radius;
    updateShadow();
}

void TovuBox::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    m_look.paint(painter, rect());
}

void TovuBox::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    updateMask();
}

void TovuBox::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    // Unset colours follow the application's light or dark palette.
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange)
        update();
}

void TovuBox::updateMask()
{
    // A square box needs no mask: the widget's own bounds already clip its children.
    if (m_clipsToBounds && m_look.cornerRadius > 0)
        setMask(TovuPainting::roundedRegion(size(), m_look.cornerRadius));
    else if (!mask().isEmpty())
        clearMask();
}

void TovuBox::updateShadow()
{
    // The effect rereads the box's values when it draws.
    if (auto *shadow = dynamic_cast<ShadowEffect *>(graphicsEffect()))
        shadow->refresh();
}
