#pragma once

#include <QFont>
#include <QPixmap>
#include <QStringList>
#include <QStringView>

class QColor;
class QPainter;
class QRectF;

/// The symbols the views use, drawn with QPainterPath so they stay crisp at any
/// device-pixel ratio. Outline symbols are stroked with a width that grows with the
/// weight; ".fill" symbols are solid; "checkmark.circle.fill" is a disc with the check
/// cut out (transparent). Unknown names draw nothing.
///
/// \code
/// TovuSymbol::paint(painter, QRectF(0, 0, 24, 24), u"star.fill", QFont::Normal, Qt::yellow);
/// label->setPixmap(TovuSymbol::pixmap(u"chevron.down", 13, QFont::DemiBold, gray2, devicePixelRatioF()));
/// \endcode
class TovuSymbol
{
public:
    /// Every symbol name, in a fixed order.
    static QStringList names();
    static bool isKnown(QStringView name);
    /// Draws `name` in the largest square centred in `rect`, leaving the painter's state as it was.
    static void paint(QPainter &painter, const QRectF &rect, QStringView name, QFont::Weight weight,
                      const QColor &color);
    /// A square, transparent pixmap of `pointSize` logical pixels (`pointSize` × `devicePixelRatio`
    /// device pixels) with the symbol drawn in it; null for a size or ratio that is not positive.
    static QPixmap pixmap(QStringView name, qreal pointSize, QFont::Weight weight, const QColor &color,
                          qreal devicePixelRatio);

    TovuSymbol() = delete;
};
