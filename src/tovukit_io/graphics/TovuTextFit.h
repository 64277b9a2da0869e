#pragma once

#include <QFont>
#include <QString>

class QPaintDevice;

/// One line of plain text fitted to a width: when the text is wider, it is set in a
/// smaller font, down to `minimumScaleFactor` of the given one, and elided only below
/// that. Measuring is the dear part: keep a fit while the text, the font and the width
/// stay the same. TovuFitLabel and TovuCaptionRow draw their text this way.
///
/// \code
/// const TovuTextFit fit(caption, font, area.width(), 0.5, *widget);
/// painter.setFont(fit.font());
/// painter.drawText(area, Qt::AlignCenter | Qt::TextSingleLine, fit.shownText(area.width()));
/// \endcode
class TovuTextFit
{
public:
    TovuTextFit() = default;
    /// Measured as on `device`, the widget the text is drawn on.
    TovuTextFit(const QString &text, const QFont &font, qreal available, qreal minimumScaleFactor,
                const QPaintDevice &device);

    QString text() const { return m_text; }
    /// The font to draw the text in: the given one, or a smaller one where it did not fit.
    QFont font() const { return m_font; }
    /// The width the text was fitted to; -1 for a default-constructed fit.
    qreal available() const { return m_available; }
    /// The text as it fits `width`: elided when even the smallest font is too wide.
    QString shownText(int width) const;

private:
    QString m_text;
    QFont m_font;
    qreal m_textWidth = 0;
    qreal m_available = -1;
};
