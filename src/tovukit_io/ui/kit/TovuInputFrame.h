#pragma once

#include <QColor>
#include <QRectF>

#include <memory>

class QEvent;
class QFocusEvent;
class QPainter;
class QWidget;

/// The painted frame the kit's text inputs share (TovuTextField, TovuTextArea), as a
/// second base next to their Qt widget: a rounded box whose border moves between a
/// resting state and a focused one. On focus it turns to `focusBorderColor` at
/// TovuPageMetrics::fieldFocusedBorderWidth over fieldFocusSeconds and any error is
/// cleared; on blur it goes back. An error paints the border
/// red until the next focus. Unset colours resolve at paint time, so they follow light
/// and dark; text and placeholder colours follow the palette too.
class TovuInputFrame
{
public:
    /// Unset: the platform's system background.
    QColor backgroundColor() const;
    void setBackgroundColor(const QColor &color);
    /// The resting border; unset: system gray 4.
    QColor borderColor() const;
    void setBorderColor(const QColor &color);
    /// The resting border width.
    qreal borderWidth() const;
    void setBorderWidth(qreal width);
    qreal cornerRadius() const;
    void setCornerRadius(qreal radius);
    /// The border while focused; unset: the platform blue.
    QColor focusBorderColor() const;
    void setFocusBorderColor(const QColor &color);
    bool hasError() const;
    void setHasError(bool error);
    /// The border as painted at this moment (resting, focused, red, or on the way).
    QColor currentBorderColor() const;
    qreal currentBorderWidth() const;

protected:
    /// `widget` is the input itself: it is repainted whenever the frame changes.
    TovuInputFrame(QWidget *widget, qreal cornerRadius, qreal borderWidth);
    ~TovuInputFrame();
    TovuInputFrame(const TovuInputFrame &) = delete;
    TovuInputFrame &operator=(const TovuInputFrame &) = delete;

    void paintFrame(QPainter &painter, const QRectF &rect) const;
    /// Text in the platform label colour, the placeholder in secondary label, and no
    /// background of the widget's own (the frame paints it).
    void applyFramePalette();
    /// Applies the palette again when it changes: the platform colours may have too.
    void frameChangeEvent(const QEvent *event);
    /// Whether the input just gained focus (and should say so).
    bool frameFocusIn();
    /// Whether the input just lost focus for good (a context menu's is only a moment).
    bool frameFocusOut(const QFocusEvent *event);

private:
    class Private;
    std::unique_ptr<Private> d;
};
