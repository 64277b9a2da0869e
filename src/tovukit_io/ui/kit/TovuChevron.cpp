#include <tovukit_io/ui/kit/TovuChevron.h>

#include <tovukit_io/graphics/TovuSymbol.h>
#include <tovukit_io/viewmodel/TovuPageMetrics.h>
#include <tovukit_io/viewmodel/TovuPlatformColors.h>

#include "TovuKitAnimator.h"

#include <QEvent>
#include <QPainter>

#include <cmath>

namespace {

constexpr qreal glyphSide = TovuPageMetrics::chevronSize;
// Room around the glyph so its corners are not cut while it turns.
constexpr int margin = 2;
constexpr int side = qRound(glyphSide) + 2 * margin;

} // namespace

TovuChevron::TovuChevron(QWidget *parent)
    : QWidget(parent)
    , m_trailingInset(TovuPageMetrics::chevronTrailing)
    , m_animator(std::make_unique<TovuKitAnimator>(this, [this](qreal degrees) { setRotation(degrees); }))
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFixedSize(side, side);
    followParent();
}

TovuChevron::~TovuChevron() = default;

QColor TovuChevron::tint() const
{
    return m_tint.isValid() ? m_tint : TovuPlatformColors::color(TovuPlatformColors::Role::gray2);
}

void TovuChevron::setTint(const QColor &color)
{
    if (m_tint == color)
        return;
    m_tint = color;
    update();
}

qreal TovuChevron::rotation() const
{
    return m_rotation;
}

void TovuChevron::setRotation(qreal degrees)
{
    if (!std::isfinite(degrees) || m_rotation == degrees)
        return;
    m_rotation = degrees;
    update();
}

bool TovuChevron::isExpanded() const
{
    return m_expanded;
}

void TovuChevron::setExpanded(bool expanded)
{
    if (m_expanded == expanded)
        return;
    m_expanded = expanded;
    m_animator->run({m_rotation, expanded ? 180.0 : 0.0}, TovuPageMetrics::chevronSeconds,
                    TovuKitAnimator::easeInOut());
}

qreal TovuChevron::trailingInset() const
{
    return m_trailingInset;
}

void TovuChevron::setTrailingInset(qreal inset)
{
    if (!std::isfinite(inset) || m_trailingInset == inset)
        return;
    m_trailingInset = inset;
    place();
}

int TovuChevron::tag() const
{
    return m_tag;
}

void TovuChevron::setTag(int tag)
{
    m_tag = tag;
}

void TovuChevron::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QPointF centre = QRectF(rect()).center();
    painter.translate(centre);
    painter.rotate(m_rotation);
    TovuSymbol::paint(painter, QRectF(-glyphSide / 2, -glyphSide / 2, glyphSide, glyphSide), u"chevron.down",
                      QFont::DemiBold, tint());
}

void TovuChevron::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::LayoutDirectionChange:
        place();
        break;
    case QEvent::PaletteChange:
    case QEvent::ApplicationPaletteChange:
        update();
        break;
    default:
        break;
    }
}

bool TovuChevron::event(QEvent *event)
{
    if (event->type() == QEvent::ParentChange)
        followParent();
    return QWidget::event(event);
}

bool TovuChevron::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_followed && (event->type() == QEvent::Resize || event->type() == QEvent::LayoutDirectionChange))
        place();
    return QWidget::eventFilter(watched, event);
}

void TovuChevron::followParent()
{
    if (m_followed == parentWidget())
        return;
    if (m_followed)
        m_followed->removeEventFilter(this);
    m_followed = parentWidget();
    if (m_followed)
        m_followed->installEventFilter(this);
    place();
}

void TovuChevron::place()
{
    QWidget *parent = parentWidget();
    if (!parent)
        return;
    // The glyph, not the widget around it, sits `trailingInset` in from the edge.
    const int inset = static_cast<int>(std::lround(m_trailingInset)) - margin;
    const int x = layoutDirection() == Qt::RightToLeft ? inset : parent->width() - inset - side;
    move(x, (parent->height() - side) / 2);
}
