#pragma once

// The buttons and labels the rating and multi-rating pages are built from; not installed.

#include <QColor>
#include <QList>
#include <QString>

class QLabel;
class QWidget;
class TovuButton;
class TovuCaptionRow;
class TovuSymbolButton;

class TovuRatingParts
{
public:
    /// A transparent symbol button (medium weight) `height` high.
    static TovuSymbolButton *symbolButton(qreal pointSize, int height, QWidget *parent);
    /// A transparent button showing `face` in the colour emoji font, `height` high.
    static TovuButton *faceButton(const QString &face, int height, QWidget *parent);
    /// `button` over a one-line label holding `text` (10 regular, shrinking to fit),
    /// 2 apart, in a widget of their own; the label is appended to `labels`.
    static QWidget *labelledColumn(TovuButton *button, const QString &text, QWidget *parent, QList<QLabel *> &labels);
    /// A row that paints column labels under its buttons as labelledColumn() shows them,
    /// without a widget per label.
    static TovuCaptionRow *captionRow();
    /// A symbol filled in `active`, or outlined in system gray 3.
    static void styleSymbol(TovuSymbolButton *button, const QString &symbolName, bool filled, const QColor &active);
    /// A face at full opacity and `chosenSize`, or faded at `size`.
    static void styleFace(TovuButton *button, bool chosen, qreal size, qreal chosenSize);
    /// Column labels in system gray.
    static void restyleColumnLabels(const QList<QLabel *> &labels);
    static void restyleColumnLabels(const QList<TovuCaptionRow *> &rows);

    TovuRatingParts() = delete;
};
