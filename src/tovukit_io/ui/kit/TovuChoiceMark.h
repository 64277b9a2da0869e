#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

// The radio or checkbox mark at an answer row's leading edge. Internal to the widget kit.
namespace TovuChoiceMark {

/// Draws the mark into the square `mark`: an outline in system gray 3, or filled with
/// `tint` and a white dot or check mark when `checked`. Sizes keep their proportions in
/// marks of other sizes.
void paint(QPainter &painter, const QRectF &mark, bool radio, bool checked, const QColor &tint);

} // namespace TovuChoiceMark
