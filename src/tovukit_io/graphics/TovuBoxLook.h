#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

/// The look a TovuBox and a TovuButton share: background, border and corner
/// radius. Unset colours follow the platform (system background, system gray 4);
/// sizes are clamped to finite, non-negative values. Each setter says whether
/// anything changed, so the widget knows to repaint.
struct TovuBoxLook {
    QColor background;
    QColor border;
    qreal borderWidth = 0;
    qreal cornerRadius = 0;

    QColor resolvedBackground() const;
    QColor resolvedBorder() const;
    bool setBackground(const QColor &color);
    bool setBorder(const QColor &color);
    bool setBorderWidth(qreal width);
    bool setCornerRadius(qreal radius);
    /// Background over the whole rounded shape, then the border inside it.
    void paint(QPainter &painter, const QRectF &rect) const;
};
