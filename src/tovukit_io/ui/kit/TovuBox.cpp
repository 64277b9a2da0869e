#include <tovukit_io/ui/kit/TovuBox.h>

#include <tovukit_io/viewmodel/TovuPlatformColors.h>

#include "TovuKitPainting.h"

#include <QEvent>
#include <QGraphicsEffect>
#include <QImage>
#include <QPaintDevice>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

// Three box-blur passes approximate a Gaussian; the alpha channel is all a shadow needs.
void blurAlpha(QImage &image, int radius)
{
    if (radius <= 0)
        return;
    const int width = image.width();
    const int height = image.height();
    const int window = 2 * radius + 1;
    std::vector<int> line(static_cast<std::size_t>(std::max(width, height)));
    auto blurLine = [&](uchar *start, int count, qsizetype stride) {
        for (int pass = 0; pass < 3; ++pass) {
            for (int i = 0; i < count; ++i)
                line[static_cast<std::size_t>(i)] = start[i * stride];
            int sum = 0;
            for (int i = 0; i < std::min(radius, count); ++i)
                sum += line[static_cast<std::size_t>(i)];
            for (int i = 0; i < count; ++i) {
                if (i + radius < count)
                    sum += line[static_cast<std::size_t>(i + radius)];
                if (i - radius - 1 >= 0)
                    sum -= line[static_cast<std::size_t>(i - radius - 1)];
                start[i * stride] = static_cast<uchar>(sum / window);
            }
        }
    };
    for (int y = 0; y < height; ++y)
        blurLine(image.scanLine(y), width, 1);
    for (int x = 0; x < width; ++x)
        blurLine(image.bits() + x, height, image.bytesPerLine());
}

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
        const qreal spread = padding();
        return rect.united(rect.translated(m_box->shadowOffset()).adjusted(-spread, -spread, spread, spread));
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
        const QRectF bounds = sourceBoundingRect(Qt::LogicalCoordinates);
        const qreal dpr = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
        const QColor color = m_box->shadowColor();
        if (color.alpha() > 0 && !bounds.isEmpty()) {
            updateImage(bounds.size(), dpr, color);
            const qreal spread = padding();
            painter->drawImage(QRectF(bounds.topLeft() + m_box->shadowOffset() - QPointF(spread, spread),
                                      bounds.size() + QSizeF(2 * spread, 2 * spread)),
                               m_image);
        }
        // Rendered into a device of another pixel ratio than the screen's (a 2× grab on a
        // 1× screen), Qt draws the source at a scaled offset; painting the box through the
        // painter keeps it in place.
        if (painter->device() && painter->device()->devicePixelRatioF() != m_box->devicePixelRatioF())
            m_box->render(painter, QPoint(), QRegion(), QWidget::DrawChildren);
        else
            drawSource(painter);
    }

private:
    qreal padding() const { return std::ceil(m_box->shadowBlurRadius() * 1.5); }

    void updateImage(const QSizeF &size, qreal dpr, const QColor &color)
    {
        const qreal radius = m_box->cornerRadius();
        const qreal blur = m_box->shadowBlurRadius();
        if (!m_image.isNull() && m_size == size && m_dpr == dpr && m_color == color && m_radius == radius
            && m_blur == blur)
            return;
        m_size = size;
        m_dpr = dpr;
        m_color = color;
        m_radius = radius;
        m_blur = blur;

        const qreal spread = padding();
        const QSize pixels((QSizeF(size.width() + 2 * spread, size.height() + 2 * spread) * dpr).toSize());
        QImage alpha(pixels, QImage::Format_Alpha8);
        alpha.fill(0);
        {
            QPainter p(&alpha);
            p.setRenderHint(QPainter::Antialiasing);
            p.scale(dpr, dpr);
            p.fillPath(TovuKitPainting::roundedRect(QRectF(QPointF(spread, spread), size), radius), Qt::black);
        }
        // A layer's shadow radius is about two standard deviations; three box passes of
        // half-width k have a variance of k(k + 1).
        const qreal sigma = blur / 2 * dpr;
        blurAlpha(alpha, static_cast<int>(std::lround(std::max<qreal>(0, sigma - 0.5))));

        m_image = QImage(pixels, QImage::Format_ARGB32_Premultiplied);
        m_image.fill(Qt::transparent);
        QPainter p(&m_image);
        p.drawImage(0, 0, alpha);
        p.setCompositionMode(QPainter::CompositionMode_SourceIn);
        p.fillRect(m_image.rect(), color);
        p.end();
        m_image.setDevicePixelRatio(dpr);
    }

    TovuBox *m_box;
    QImage m_image;
    QSizeF m_size;
    qreal m_dpr = 0;
    QColor m_color;
    qreal m_radius = -1;
    qreal m_blur = -1;
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
        setMask(TovuKitPainting::roundedRegion(size(), m_look.cornerRadius));
    else if (!mask().isEmpty())
        clearMask();
}

void TovuBox::updateShadow()
{
    // The effect rereads the box's values when it draws.
    if (auto *shadow = dynamic_cast<ShadowEffect *>(graphicsEffect()))
        shadow->refresh();
}
