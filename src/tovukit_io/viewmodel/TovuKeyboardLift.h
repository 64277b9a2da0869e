#pragma once

#include <QObject>
#include <QPointer>
#include <QRectF>

#include <functional>

class QVariantAnimation;

/// How far a bottom sheet's panel rises above the on-screen keyboard, for both
/// front ends: it follows the input method's keyboard rectangle while tracking and
/// animates the lift, handing each value to the sheet.
///
/// \code
/// m_lift = new TovuKeyboardLift([this](qreal offset) { setBottomOffset(offset); }, this);
/// m_lift->setTracking(true); // while the sheet is up
/// \endcode
class TovuKeyboardLift : public QObject
{
    Q_OBJECT

public:
    TovuKeyboardLift(std::function<void(qreal)> applyOffset, QObject *parent);
    ~TovuKeyboardLift() override;

    /// Whether the input method's keyboard rectangle is followed.
    void setTracking(bool on);
    /// The keyboard is about to cover `keyboardFrame` (only its height counts), over
    /// `durationMs` (scaled by the motion clock); an empty frame changes nothing.
    void keyboardWillShow(const QRectF &keyboardFrame, int durationMs);
    void keyboardWillHide(int durationMs);
    /// The lift now.
    qreal offset() const { return m_offset; }

private:
    void animateTo(qreal target, int durationMs);
    void keyboardRectangleChanged();

    std::function<void(qreal)> m_applyOffset;
    QPointer<QVariantAnimation> m_animation;
    qreal m_offset = 0;
    bool m_tracking = false;
};
