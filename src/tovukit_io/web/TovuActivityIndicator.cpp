#include <tovukit_io/web/TovuActivityIndicator.h>

#include <tovukit_io/viewmodel/TovuPlatformColors.h>

#include <QPainter>

namespace {

constexpr int spokes = 12;
constexpr int stepMs = 1000 / spokes; // one turn a second
constexpr int side = 24;

} // namespace

TovuActivityIndicator::TovuActivityIndicator(QWidget *parent)
    : QWidget(parent)
    , m_color(TovuPlatformColors::color(TovuPlatformColors::Role::gray))
{
    setFixedSize(side, side);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    m_timer.setInterval(stepMs);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        m_step = (m_step + 1) % spokes;
        update();
    });
}

void TovuActivityIndicator::startAnimating()
{
    m_timer.start();
    show();
    raise();
}

void TovuActivityIndicator::stopAnimating()
{
    m_timer.stop();
    hide();
}

QSize TovuActivityIndicator::sizeHint() const
{
    return {side, side};
}

void TovuActivityIndicator::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(width() / 2.0, height() / 2.0);
    const qreal radius = side / 2.0;
    QPen pen(m_color, radius / 4.5, Qt::SolidLine, Qt::RoundCap);
    for (int i = 0; i < spokes; ++i) {
        // The spoke at the current step is darkest; those behind it fade out.
        const int age = (m_step - i + spokes) % spokes;
        QColor color = m_color;
        color.setAlphaF(static_cast<float>(1.0 - 0.75 * age / (spokes - 1)));
        pen.setColor(color);
        painter.setPen(pen);
        painter.save();
        painter.rotate(360.0 * i / spokes);
        painter.drawLine(QPointF(0, -radius * 0.45), QPointF(0, -radius * 0.9));
        painter.restore();
    }
}
