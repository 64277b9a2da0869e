#include "TovuDemoHostScreen.h"

#include "TovuDemoLook.h"
#include "TovuDemoStorefront.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>

#include <array>

namespace {

using Colors = TovuDemoLook::HostColors;
using Storefront = TovuDemoStorefront;

QFont pixelFont(const QWidget *widget, int pixelSize, QFont::Weight weight = QFont::Normal)
{
    QFont f = widget->font();
    f.setPixelSize(pixelSize);
    f.setWeight(weight);
    return f;
}

// Colour emoji need their font first, else some come out as black outlines.
QFont emojiFont(const QWidget *widget, int pixelSize)
{
    QFont f = pixelFont(widget, pixelSize);
    f.setFamilies({QStringLiteral("Noto Color Emoji"), widget->font().family()});
    return f;
}

void drawStatusBar(QPainter &p, const QWidget *w, const Colors &c, const Storefront &s, bool online)
{
    p.setPen(c.text);
    p.setFont(pixelFont(w, 15, QFont::DemiBold));
    p.drawText(QRectF(28, 12, 60, 22), Qt::AlignLeft | Qt::AlignVCenter, s.clock);

    const qreal right = w->width() - 24;
    // Battery.
    p.setPen(QPen(c.text, 1.2));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(QRectF(right - 26, 16, 24, 12), 3, 3);
    p.fillRect(QRectF(right - 24, 18, 16, 8), c.text);
    p.fillRect(QRectF(right - 1.5, 20, 2, 4), c.text);
    // Signal bars, hollow while offline.
    for (int bar = 0; bar < 4; ++bar) {
        const QRectF rect(right - 58 + bar * 6, 27 - 3 * (bar + 1), 4, 3 * (bar + 1));
        if (online)
            p.fillRect(rect, c.text);
        else
            p.fillRect(rect, c.separator);
    }
    if (!online) {
        p.setFont(pixelFont(w, 12, QFont::DemiBold));
        const QString text = QObject::tr("Offline");
        const qreal width = p.fontMetrics().horizontalAdvance(text) + 18;
        const QRectF pill(right - 66 - width, 13, width, 18);
        p.setPen(Qt::NoPen);
        p.setBrush(c.alert);
        p.drawRoundedRect(pill, 9, 9);
        p.setPen(Qt::white);
        p.drawText(pill, Qt::AlignCenter, text);
    }
}

void drawHeader(QPainter &p, const QWidget *w, const Colors &c, const Storefront &s)
{
    p.setPen(Qt::NoPen);
    p.setBrush(c.brand);
    p.drawEllipse(QRectF(20, 56, 38, 38));
    p.setFont(emojiFont(w, 20));
    p.setPen(c.text);
    p.drawText(QRectF(20, 56, 38, 38), Qt::AlignCenter, s.logo);
    p.setFont(pixelFont(w, 20, QFont::Bold));
    p.setPen(c.text);
    p.drawText(QRectF(68, 56, 200, 38), Qt::AlignLeft | Qt::AlignVCenter, s.appName);

    const QRectF avatar(w->width() - 58, 56, 38, 38);
    p.setPen(Qt::NoPen);
    p.setBrush(c.card);
    p.drawEllipse(avatar);
    p.setPen(c.brand);
    p.setFont(pixelFont(w, 16, QFont::Bold));
    p.drawText(avatar, Qt::AlignCenter, s.avatar);
}

void drawDeliveryCard(QPainter &p, const QWidget *w, const Colors &c, const Storefront &s, qreal top)
{
    const QRectF card(20, top, w->width() - 40, 148);
    p.setPen(Qt::NoPen);
    p.setBrush(c.brand);
    p.drawRoundedRect(card, 20, 20);

    p.setPen(c.onBrand);
    p.setFont(pixelFont(w, 13, QFont::DemiBold));
    p.drawText(QRectF(card.left() + 20, top + 18, 200, 18), Qt::AlignLeft | Qt::AlignVCenter, s.order);
    // The arrival time fits beside the van: the font gives way on narrow screens.
    const QRectF arrival(card.left() + 20, top + 40, card.width() - 96, 30);
    const QString &arriving = s.arrival;
    int size = 22;
    p.setFont(pixelFont(w, size, QFont::Bold));
    while (size > 14 && p.fontMetrics().horizontalAdvance(arriving) > arrival.width())
        p.setFont(pixelFont(w, --size, QFont::Bold));
    p.drawText(arrival, Qt::AlignLeft | Qt::AlignVCenter, arriving);
    p.setFont(emojiFont(w, 34));
    p.drawText(QRectF(card.right() - 70, top + 14, 54, 54), Qt::AlignCenter, s.vehicle);

    // Progress: packed, on the way (here), delivered.
    const qreal y = top + 98;
    const qreal left = card.left() + 30;
    const qreal step = (card.width() - 60) / 2;
    QColor faint = c.onBrand;
    faint.setAlphaF(0.35f);
    p.setPen(QPen(c.onBrand, 3, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(left, y), QPointF(left + step, y));
    p.setPen(QPen(faint, 3, Qt::SolidLine, Qt::RoundCap));
    p.drawLine(QPointF(left + step, y), QPointF(left + 2 * step, y));
    p.setFont(pixelFont(w, 12, QFont::DemiBold));
    for (int i = 0; i < 3; ++i) {
        const QPointF centre(left + i * step, y);
        const bool reached = i <= s.currentStep;
        const qreal radius = i == s.currentStep ? 7.0 : 5.0;
        p.setPen(Qt::NoPen);
        p.setBrush(reached ? c.onBrand : faint);
        p.drawEllipse(centre, radius, radius);
        p.setPen(reached ? c.onBrand : faint);
        const QRectF label(centre.x() - 50, y + 12, 100, 18);
        const int align = i == 0 ? Qt::AlignLeft : i == 2 ? Qt::AlignRight : Qt::AlignHCenter;
        p.drawText(label.translated(i == 0 ? 44 : i == 2 ? -44 : 0, 0), align | Qt::AlignVCenter, s.steps.value(i));
    }
}

void drawSectionTitle(QPainter &p, const QWidget *w, const Colors &c, qreal top, const QString &title,
                      const QString &action)
{
    p.setPen(c.text);
    p.setFont(pixelFont(w, 18, QFont::Bold));
    p.drawText(QRectF(20, top, 240, 26), Qt::AlignLeft | Qt::AlignVCenter, title);
    if (!action.isEmpty()) {
        p.setPen(c.brand);
        p.setFont(pixelFont(w, 14, QFont::DemiBold));
        p.drawText(QRectF(w->width() - 120, top, 100, 26), Qt::AlignRight | Qt::AlignVCenter, action);
    }
}

void drawBuyAgain(QPainter &p, const QWidget *w, const Colors &c, const Storefront &s, qreal top)
{
    const auto &items = s.buyAgain;
    const qreal gap = 12;
    const qreal width = (w->width() - 40 - 3 * gap) / 4;
    for (std::size_t i = 0; i < items.size(); ++i) {
        const QRectF tile(20 + static_cast<qreal>(i) * (width + gap), top, width, 110);
        p.setPen(Qt::NoPen);
        p.setBrush(c.card);
        p.drawRoundedRect(tile, 16, 16);
        p.setFont(emojiFont(w, 32));
        p.setPen(c.text);
        p.drawText(QRectF(tile.left(), top + 10, tile.width(), 44), Qt::AlignCenter, items[i].emoji);
        p.setFont(pixelFont(w, 12));
        p.drawText(QRectF(tile.left() + 4, top + 58, tile.width() - 8, 18), Qt::AlignCenter,
                   p.fontMetrics().elidedText(items[i].name, Qt::ElideRight, static_cast<int>(tile.width() - 8)));
        p.setFont(pixelFont(w, 13, QFont::Bold));
        p.drawText(QRectF(tile.left(), top + 80, tile.width(), 18), Qt::AlignCenter, items[i].price);
    }
}

void drawRecentOrders(QPainter &p, const QWidget *w, const Colors &c, const Storefront &s, qreal top, qreal bottom)
{
    const auto &orders = s.recentOrders;
    qreal y = top;
    for (const Storefront::PastOrder &order : orders) {
        if (y + 60 > bottom)
            break;
        p.setPen(Qt::NoPen);
        p.setBrush(c.card);
        p.drawEllipse(QRectF(20, y + 8, 44, 44));
        p.setFont(emojiFont(w, 22));
        p.setPen(c.text);
        p.drawText(QRectF(20, y + 8, 44, 44), Qt::AlignCenter, s.pastOrderIcon);
        p.setFont(pixelFont(w, 15, QFont::DemiBold));
        p.drawText(QRectF(76, y + 10, w->width() - 130, 20), Qt::AlignLeft | Qt::AlignVCenter, order.title);
        p.setPen(c.secondary);
        p.setFont(pixelFont(w, 13));
        p.drawText(QRectF(76, y + 32, w->width() - 130, 18), Qt::AlignLeft | Qt::AlignVCenter, order.detail);
        // Chevron.
        p.setPen(QPen(c.secondary, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        const qreal x = w->width() - 30;
        p.drawPolyline(
            std::array<QPointF, 3>{QPointF(x - 5, y + 23), QPointF(x, y + 30), QPointF(x - 5, y + 37)}.data(), 3);
        y += 64;
        if (&order != &orders.back()) {
            p.setPen(QPen(c.separator, 1));
            p.drawLine(QPointF(76, y - 2), QPointF(w->width() - 20, y - 2));
        }
    }
}

void drawTabBar(QPainter &p, const QWidget *w, const Colors &c, const Storefront &s)
{
    const qreal top = w->height() - 83;
    p.fillRect(QRectF(0, top, w->width(), 83), c.background);
    p.setPen(QPen(c.separator, 1));
    p.drawLine(QPointF(0, top), QPointF(w->width(), top));
    const qreal width = w->width() / 4.0;
    for (int i = 0; i < 4; ++i) {
        const QColor colour = i == 0 ? c.brand : c.secondary;
        const QPointF centre(width * i + width / 2, top + 24);
        p.setPen(QPen(colour, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.setBrush(Qt::NoBrush);
        QPainterPath glyph;
        switch (i) {
        case 0: // house
            glyph.moveTo(centre + QPointF(-10, -1));
            glyph.lineTo(centre + QPointF(0, -10));
            glyph.lineTo(centre + QPointF(10, -1));
            glyph.moveTo(centre + QPointF(-7, -3));
            glyph.lineTo(centre + QPointF(-7, 10));
            glyph.lineTo(centre + QPointF(7, 10));
            glyph.lineTo(centre + QPointF(7, -3));
            break;
        case 1: // magnifier
            glyph.addEllipse(centre + QPointF(-2, -2), 7, 7);
            glyph.moveTo(centre + QPointF(3, 3));
            glyph.lineTo(centre + QPointF(9, 9));
            break;
        case 2: // basket
            glyph.moveTo(centre + QPointF(-11, -2));
            glyph.lineTo(centre + QPointF(11, -2));
            glyph.lineTo(centre + QPointF(7, 10));
            glyph.lineTo(centre + QPointF(-7, 10));
            glyph.closeSubpath();
            glyph.moveTo(centre + QPointF(-6, -2));
            glyph.lineTo(centre + QPointF(-2, -10));
            glyph.moveTo(centre + QPointF(6, -2));
            glyph.lineTo(centre + QPointF(2, -10));
            break;
        default: // person
            glyph.addEllipse(centre + QPointF(0, -5), 5, 5);
            glyph.moveTo(centre + QPointF(-9, 11));
            glyph.cubicTo(centre + QPointF(-9, 1), centre + QPointF(9, 1), centre + QPointF(9, 11));
            break;
        }
        p.drawPath(glyph);
        p.setPen(colour);
        p.setFont(pixelFont(w, 11, i == 0 ? QFont::DemiBold : QFont::Normal));
        p.drawText(QRectF(width * i, top + 38, width, 16), Qt::AlignCenter, s.tabs.value(i));
    }
    // Home indicator.
    p.setPen(Qt::NoPen);
    p.setBrush(c.text);
    p.drawRoundedRect(QRectF(w->width() / 2.0 - 67, w->height() - 13, 134, 5), 2.5, 2.5);
}

} // namespace

TovuDemoHostScreen::TovuDemoHostScreen(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("hostScreen"));
    setAccessibleName(tr("Fresh Basket home screen"));
    setMinimumSize(320, 560);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void TovuDemoHostScreen::setOnline(bool online)
{
    if (online == m_online)
        return;
    m_online = online;
    update();
}

void TovuDemoHostScreen::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        update();
    QWidget::changeEvent(event);
}

void TovuDemoHostScreen::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    const Colors c = TovuDemoLook::hostColors(palette().color(QPalette::Window).lightness() < 128);
    const Storefront &s = Storefront::freshBasket();
    p.fillRect(rect(), c.background);

    drawStatusBar(p, this, c, s, m_online);
    drawHeader(p, this, c, s);
    p.setPen(c.text);
    p.setFont(pixelFont(this, 26, QFont::Bold));
    p.drawText(QRectF(20, 110, width() - 40, 36), Qt::AlignLeft | Qt::AlignVCenter, s.greeting);
    p.setPen(c.secondary);
    p.setFont(pixelFont(this, 15));
    p.drawText(QRectF(20, 146, width() - 40, 22), Qt::AlignLeft | Qt::AlignVCenter, s.status);
    drawDeliveryCard(p, this, c, s, 182);
    drawSectionTitle(p, this, c, 350, s.buyAgainTitle, s.seeAll);
    drawBuyAgain(p, this, c, s, 386);
    drawSectionTitle(p, this, c, 518, s.recentOrdersTitle, QString());
    drawRecentOrders(p, this, c, s, 548, height() - 83);
    drawTabBar(p, this, c, s);
}
