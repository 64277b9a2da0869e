#pragma once

// The painted frame and colours the kit's text inputs share; not installed.

#include <tovukit_io/ui/kit/TovuBoxLook.h>

#include "TovuKitAnimator.h"

#include <QColor>

class QPainter;
class QWidget;

/// A TovuBoxLook whose border moves between a resting state and a focused one: on focus
/// it turns to `focusBorder` at width 2 over 0.2 s, on blur it goes back. An error
/// paints the border red until the next focus. Unset colours resolve at paint time.
class TovuInputFrame
{
public:
    /// `widget` is repainted whenever the frame changes and owns the animation.
    TovuInputFrame(QWidget *widget, qreal cornerRadius, qreal borderWidth);

    TovuBoxLook look;
    QColor focusBorder;

    QColor resolvedFocusBorder() const;
    /// The border as painted now.
    QColor currentBorderColor() const;
    qreal currentBorderWidth() const;

    bool hasError() const;
    /// Says whether anything changed.
    bool setHasError(bool error);
    /// Returns whether the widget just became focused (and should say so).
    bool focusIn();
    /// Returns whether the widget just lost focus (and should say so).
    bool focusOut();

    void paint(QPainter &painter, const QRectF &rect) const;

    /// Text in the platform label colour, the placeholder in secondary label, and no
    /// background of the widget's own (the frame paints it). Call again when the
    /// palette changes: the platform colours may have changed with it.
    void applyPalette();

private:
    void animateTo(qreal progress);

    QWidget *m_widget;
    TovuKitAnimator m_animator;
    qreal m_progress = 0;
    bool m_focused = false;
    bool m_error = false;
    bool m_applyingPalette = false;
};
