#pragma once

#include <QColor>
#include <QFont>
#include <QRectF>
#include <QString>

class QPainter;

/// Fonts for emoji faces. Without a colour emoji font first in the family list, the
/// system font's fallback may draw some faces as black outlines; with "Noto Color
/// Emoji" first and the given (or system) family after, faces come out in colour.
///
/// Meant for text that is all emoji: the colour font has its own digits too.
///
/// \code
/// button->setFont(TovuEmoji::font(42));
/// button->setText(QString::fromUtf8("\xF0\x9F\x98\x9E")); // 😞
/// \endcode
class TovuEmoji
{
public:
    /// The system font at `pixelSize` (at least 1) with the colour emoji family first.
    static QFont font(qreal pixelSize);
    /// `base` with the colour emoji family put before its own families.
    static QFont withEmoji(const QFont &base);
    /// The family put first.
    static QString family();
    /// Whether `font` puts the colour emoji family first.
    static bool isEmojiFont(const QFont &font);
    /// Draws `text` in `font` within `rect` as QPainter::drawText does with `flags`, from a
    /// picture made once per text, font, colour and pixel ratio: Qt keeps no glyph cache
    /// for glyphs this large and would decode the colour bitmaps again on every paint.
    static void drawText(QPainter &painter, const QRectF &rect, int flags, const QString &text, const QFont &font,
                         const QColor &color);

    TovuEmoji() = delete;
};
