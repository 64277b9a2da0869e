import QtQuick
import TovuKit

// The refusal's shake: `shift` (a Translate) goes a few points to the left and back.
SequentialAnimation {
    id: shake

    required property Translate shift

    NumberAnimation {
        target: shake.shift; property: "x"; to: -TovuPageMetrics.shakeDistance
        duration: TovuStyle.durationMs(TovuPageMetrics.shakeSeconds)
    }
    NumberAnimation {
        target: shake.shift; property: "x"; to: 0
        duration: TovuStyle.durationMs(TovuPageMetrics.shakeSeconds)
    }
}
