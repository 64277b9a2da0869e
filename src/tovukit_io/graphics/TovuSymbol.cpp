#include <tovukit_io/graphics/TovuSymbol.h>

#include <tovukit_io/graphics/TovuPainting.h>

#include <QColor>
#include <QHash>
#include <QMutex>
#include <QPainter>
#include <QPainterPath>
#include <QPainterPathStroker>
#include <QRectF>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace {

// Paths are built once per name and weight in a square of this many units and scaled
// when painted: boolean path operations flatten curves, which is invisible at this size.
constexpr qreal unit = 1000.0;

constexpr std::array<QLatin1StringView, 11> symbolNames{
    QLatin1StringView("star"),         QLatin1StringView("star.fill"),
    QLatin1StringView("heart"),        QLatin1StringView("heart.fill"),
    QLatin1StringView("circle"),       QLatin1StringView("circle.fill"),
    QLatin1StringView("square"),       QLatin1StringView("square.fill"),
    QLatin1StringView("checkmark"),    QLatin1StringView("checkmark.circle.fill"),
    QLatin1StringView("chevron.down"),
};

// Regular (400) strokes are about 1/13 of the symbol; black (900) about 1/8.
qreal strokeWidth(QFont::Weight weight)
{
    const qreal t = std::clamp((static_cast<qreal>(weight) - 100.0) / 800.0, 0.0, 1.0);
    return unit * (0.045 + 0.08 * t);
}

QPainterPath starShape(qreal inset)
{
    // The widest span of a five-pointed star is 2·R·cos 18°; it sits a little low so
    // its points and its feet are equally far from the edges.
    const qreal radius = (unit - 2 * inset) / (2 * std::cos(std::numbers::pi / 10));
    const QPointF centre(unit / 2, unit / 2 + radius * (1 - std::cos(std::numbers::pi / 5)) / 2);
    QPainterPath path;
    for (int i = 0; i < 10; ++i) {
        const qreal angle = -std::numbers::pi / 2 + i * std::numbers::pi / 5;
        const qreal r = (i % 2 == 0) ? radius : radius * 0.5;
        const QPointF point = centre + QPointF(r * std::cos(angle), r * std::sin(angle));
        if (i == 0)
            path.moveTo(point);
        else
            path.lineTo(point);
    }
    path.closeSubpath();
    return path;
}

QPainterPath heartShape(qreal inset)
{
    // Drawn in a 0..1 box, then fitted inside the inset square.
    QPainterPath path;
    path.moveTo(0.5, 0.92);
    path.cubicTo(0.32, 0.78, 0.0, 0.56, 0.0, 0.3);
    path.cubicTo(0.0, 0.13, 0.13, 0.02, 0.28, 0.02);
    path.cubicTo(0.38, 0.02, 0.46, 0.08, 0.5, 0.17);
    path.cubicTo(0.54, 0.08, 0.62, 0.02, 0.72, 0.02);
    path.cubicTo(0.87, 0.02, 1.0, 0.13, 1.0, 0.3);
    path.cubicTo(1.0, 0.56, 0.68, 0.78, 0.5, 0.92);
    path.closeSubpath();
    const qreal side = unit - 2 * inset;
    QTransform fit;
    fit.translate(inset, inset + side * 0.03);
    fit.scale(side, side);
    return fit.map(path);
}

QPainterPath checkShape(const QRectF &box)
{
    QPainterPath path;
    path.moveTo(box.left() + box.width() * 0.08, box.top() + box.height() * 0.54);
    path.lineTo(box.left() + box.width() * 0.38, box.top() + box.height() * 0.84);
    path.lineTo(box.left() + box.width() * 0.92, box.top() + box.height() * 0.18);
    return path;
}

QPainterPath stroked(const QPainterPath &shape, qreal width)
{
    QPainterPathStroker stroker;
    stroker.setWidth(width);
    stroker.setCapStyle(Qt::RoundCap);
    stroker.setJoinStyle(Qt::RoundJoin);
    return stroker.createStroke(shape);
}

// The solid area of a symbol: outlines are stroked; ".fill" shapes are the shape plus
// its stroke, so a filled and an outlined symbol have the same outer edge.
QPainterPath buildSymbol(QStringView name, QFont::Weight weight)
{
    const qreal width = strokeWidth(weight);
    const qreal inset = width / 2;
    const QRectF square(0, 0, unit, unit);
    const QRectF insetSquare = square.adjusted(inset, inset, -inset, -inset);

    QPainterPath shape;
    bool filled = name.endsWith(QLatin1StringView(".fill"));
    if (name.startsWith(QLatin1StringView("star"))) {
        shape = starShape(inset);
    } else if (name.startsWith(QLatin1StringView("heart"))) {
        shape = heartShape(inset);
    } else if (name == QLatin1StringView("circle") || name == QLatin1StringView("circle.fill")) {
        shape.addEllipse(insetSquare);
    } else if (name.startsWith(QLatin1StringView("square"))) {
        const QRectF box = insetSquare.adjusted(unit * 0.04, unit * 0.04, -unit * 0.04, -unit * 0.04);
        shape.addRoundedRect(box, unit * 0.2, unit * 0.2);
    } else if (name == QLatin1StringView("checkmark")) {
        const qreal heavy = width * 1.3;
        return stroked(
            checkShape(square.adjusted(heavy / 2, heavy / 2 + unit * 0.08, -heavy / 2, -heavy / 2 - unit * 0.08)),
            heavy);
    } else if (name == QLatin1StringView("checkmark.circle.fill")) {
        QPainterPath disc;
        disc.addEllipse(square);
        const QRectF checkBox = square.adjusted(unit * 0.27, unit * 0.3, -unit * 0.27, -unit * 0.3);
        return disc.subtracted(stroked(checkShape(checkBox), std::max(width * 1.3, unit * 0.09)));
    } else if (name == QLatin1StringView("chevron.down")) {
        const qreal heavy = width * 1.3;
        QPainterPath chevron;
        chevron.moveTo(heavy / 2 + unit * 0.04, unit * 0.3);
        chevron.lineTo(unit / 2, unit * 0.72);
        chevron.lineTo(unit - heavy / 2 - unit * 0.04, unit * 0.3);
        return stroked(chevron, heavy);
    } else {
        return {};
    }
    QPainterPath outline = stroked(shape, width);
    if (!filled)
        return outline;
    shape.setFillRule(Qt::WindingFill);
    return shape.united(outline).simplified();
}

const QPainterPath &symbolPath(QStringView name, QFont::Weight weight)
{
    static QMutex mutex;
    static QHash<QString, QPainterPath> cache;
    QMutexLocker lock(&mutex);
    const QString key = name.toString() + QLatin1Char('@') + QString::number(static_cast<int>(weight));
    auto it = cache.find(key);
    if (it == cache.end())
        it = cache.insert(key, buildSymbol(name, weight));
    // Entries are never removed, so the reference stays valid after the lock is released.
    return it.value();
}

} // namespace

QStringList TovuSymbol::names()
{
    QStringList list;
    list.reserve(static_cast<qsizetype>(symbolNames.size()));
    for (QLatin1StringView name : symbolNames)
        list.append(name);
    return list;
}

bool TovuSymbol::isKnown(QStringView name)
{
    return std::any_of(symbolNames.begin(), symbolNames.end(),
                       [name](QLatin1StringView known) { return name == known; });
}

void TovuSymbol::paint(QPainter &painter, const QRectF &rect, QStringView name, QFont::Weight weight,
                       const QColor &color)
{
    if (!isKnown(name) || !rect.isValid() || !color.isValid())
        return;
    const QPainterPath &path = symbolPath(name, weight);
    const QRectF square = TovuPainting::pixelAligned(painter, rect.center(), std::min(rect.width(), rect.height()));
    const QString key
        = QStringLiteral("tovu-symbol/%1/%2/%3").arg(name).arg(static_cast<int>(weight)).arg(color.rgba(), 0, 16);
    TovuPainting::paintCached(painter, square, key, [&path, &color](QPainter &target, const QRectF &area) {
        target.save();
        target.setRenderHint(QPainter::Antialiasing);
        target.translate(area.topLeft());
        target.scale(area.width() / unit, area.width() / unit);
        target.fillPath(path, color);
        target.restore();
    });
}

QPixmap TovuSymbol::pixmap(QStringView name, qreal pointSize, QFont::Weight weight, const QColor &color,
                           qreal devicePixelRatio)
{
    if (!(pointSize > 0) || !(devicePixelRatio > 0))
        return {};
    const int pixels = std::max(1, static_cast<int>(std::lround(pointSize * devicePixelRatio)));
    QPixmap result(pixels, pixels);
    result.setDevicePixelRatio(devicePixelRatio);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    const qreal side = pixels / devicePixelRatio;
    paint(painter, QRectF(0, 0, side, side), name, weight, color);
    return result;
}
