#pragma once

#include <QFont>
#include <QRect>
#include <QRectF>
#include <QString>

class QPaintDevice;

/// What QFontMetrics(font, &device).boundingRect(rect, flags, text) and its floating-point
/// twin say, measured once per font, resolution, rectangle, flags and text. A page says the
/// same few things many times (eleven scores in every row, the same faces and column
/// labels in every row), shaping is the dear part of laying it out, and a colour emoji's
/// bitmap is decoded again for every measurement. GUI thread only.
class TovuTextMetrics
{
public:
    static QRect boundingRect(const QFont &font, const QPaintDevice &device, const QRect &rect, int flags,
                              const QString &text);
    static QRectF boundingRect(const QFont &font, const QPaintDevice &device, const QRectF &rect, int flags,
                               const QString &text);

    TovuTextMetrics() = delete;
};
