#pragma once

// Reading what widgets paint, at any device-pixel ratio, for the kit's drawing tests.

#include <QColor>
#include <QImage>
#include <QPixmap>
#include <QRectF>
#include <QWidget>

#include <algorithm>
#include <cstdlib>

namespace TovuPixelTesting {

// What QWidget::grab() does, at any device-pixel ratio: children, masks and effects included.
inline QImage grabAt(QWidget &widget, qreal dpr)
{
    if (dpr == widget.devicePixelRatioF())
        return widget.grab().toImage();
    QPixmap pixmap((QSizeF(widget.size()) * dpr).toSize());
    pixmap.setDevicePixelRatio(dpr);
    pixmap.fill(Qt::transparent);
    widget.render(&pixmap);
    return pixmap.toImage();
}

// The pixel at logical point (x, y).
inline QColor pixelAt(const QImage &image, qreal x, qreal y)
{
    const qreal dpr = image.devicePixelRatio();
    return image.pixelColor(static_cast<int>(x * dpr), static_cast<int>(y * dpr));
}

// Pixels within 10 of `color` in every channel inside the logical rectangle.
inline int countNear(const QImage &image, const QRectF &logical, const QColor &color)
{
    const qreal dpr = image.devicePixelRatio();
    const QRect area = QRectF(logical.topLeft() * dpr, logical.size() * dpr).toRect().intersected(image.rect());
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            const QColor c = image.pixelColor(x, y);
            const int distance = std::max({std::abs(c.red() - color.red()), std::abs(c.green() - color.green()),
                                           std::abs(c.blue() - color.blue()), std::abs(c.alpha() - color.alpha())});
            if (distance <= 10)
                ++count;
        }
    }
    return count;
}

// Widgets under test sit in a container that paints no background of its own, so a grab
// of it shows exactly what its children draw.
struct Stage {
    QWidget window;
    QWidget *container = new QWidget(&window);

    explicit Stage(QSize size = QSize(120, 100))
    {
        container->resize(size);
        container->setAttribute(Qt::WA_NoSystemBackground);
    }
};

// Colours far enough apart to tell which one painted a pixel.
inline const QColor red(255, 0, 0);
inline const QColor green(0, 200, 0);
inline const QColor blue(0, 0, 255);
inline const QColor yellow(255, 250, 200);

} // namespace TovuPixelTesting
