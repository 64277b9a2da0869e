#include <tovukit_io/viewmodel/TovuKeyboardLift.h>

#include <tovukit_io/viewmodel/TovuMotion.h>
#include <tovukit_io/viewmodel/TovuSheetMetrics.h>

#include <QGuiApplication>
#include <QInputMethod>
#include <QVariantAnimation>

#include <cmath>

TovuKeyboardLift::TovuKeyboardLift(std::function<void(qreal)> applyOffset, QObject *parent)
    : QObject(parent)
    , m_applyOffset(std::move(applyOffset))
{ }

TovuKeyboardLift::~TovuKeyboardLift() = default;

void TovuKeyboardLift::setTracking(bool on)
{
    QInputMethod *inputMethod = QGuiApplication::inputMethod();
    if (!inputMethod || on == m_tracking)
        return;
    m_tracking = on;
    if (on)
        connect(inputMethod, &QInputMethod::keyboardRectangleChanged, this,
                &TovuKeyboardLift::keyboardRectangleChanged);
    else
        disconnect(inputMethod, &QInputMethod::keyboardRectangleChanged, this,
                   &TovuKeyboardLift::keyboardRectangleChanged);
}

void TovuKeyboardLift::keyboardWillShow(const QRectF &keyboardFrame, int durationMs)
{
    if (keyboardFrame.isEmpty())
        return;
    animateTo(keyboardFrame.height(), durationMs);
}

void TovuKeyboardLift::keyboardWillHide(int durationMs)
{
    animateTo(0, durationMs);
}

void TovuKeyboardLift::animateTo(qreal target, int durationMs)
{
    if (m_animation)
        m_animation->stop();
    // The system's duration, slowed or stopped with every other animation.
    const int scaled = static_cast<int>(std::max(0, durationMs) * TovuMotion::durationScale());
    m_animation = TovuMotion::animate(this, m_offset, target, scaled, QEasingCurve(QEasingCurve::OutCubic),
                                      [this](qreal value) {
                                          m_offset = value;
                                          m_applyOffset(value);
                                      });
}

void TovuKeyboardLift::keyboardRectangleChanged()
{
    // Qt does not tell the keyboard's own duration.
    const int durationMs = static_cast<int>(std::lround(TovuSheetMetrics::keyboardSeconds * 1000));
    const QInputMethod *inputMethod = QGuiApplication::inputMethod();
    const QRectF keyboard = inputMethod->keyboardRectangle();
    if (inputMethod->isVisible() && !keyboard.isEmpty())
        keyboardWillShow(keyboard, durationMs);
    else
        keyboardWillHide(durationMs);
}
