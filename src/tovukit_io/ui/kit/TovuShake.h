#pragma once

#include <QtGlobal>

class QWidget;

/// The "try again" shake of a view whose answer is missing: its drawing moves
/// TovuPageMetrics::shakeDistance points to the left over shakeSeconds and back over
/// shakeSeconds (motion time). Only the painting moves,
/// through a graphics effect that is removed when done: layouts and geometry stay put.
///
/// A widget that already has a graphics effect of its own (a shadow, a scaled button)
/// is left alone, as is a null widget. Shaking again while a shake runs starts it over.
///
/// \code
/// if (!viewModel->submit()) {
///     validationLabel->show();
///     TovuShake::shake(this);
/// }
/// \endcode
class TovuShake
{
public:
    static void shake(QWidget *widget);
    /// How far the widget's drawing is moved right now, in points (negative: left); 0
    /// when it is not shaking.
    static qreal offset(const QWidget *widget);

    TovuShake() = delete;
};
