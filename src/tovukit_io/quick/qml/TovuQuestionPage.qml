import QtQuick
import TovuKit

// What every question page shares: the model it draws, the accent, and the
// shake when the model refuses the input. Pages decide nothing themselves.
Column {
    id: page

    required property TovuQuestionViewModel model
    readonly property color accent: TovuStyle.primaryColor

    width: parent ? parent.width : 0
    transform: Translate { id: shift }

    SequentialAnimation {
        id: shake
        NumberAnimation {
            target: shift; property: "x"; to: -TovuPageMetrics.shakeDistance
            duration: TovuStyle.durationMs(TovuPageMetrics.shakeSeconds)
        }
        NumberAnimation {
            target: shift; property: "x"; to: 0
            duration: TovuStyle.durationMs(TovuPageMetrics.shakeSeconds)
        }
    }

    Connections {
        target: page.model
        function onShakeRequested() { shake.restart() }
    }
}
