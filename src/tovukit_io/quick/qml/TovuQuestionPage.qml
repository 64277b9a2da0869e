import QtQuick
import TovuKit

// What every question page shares: the model it draws, the accent, and the
// shake when the model refuses the input. Pages decide nothing themselves.
Column {
    id: page

    required property TovuQuestionViewModel model
    readonly property color accent: TovuStyle.primaryColor
    // Whether a refusal shakes the whole page; else only its message does (the footer's).
    property bool shakesPage: true

    width: parent ? parent.width : 0
    transform: Translate { id: shift }

    TovuShakeAnimation {
        id: shake
        shift: shift
    }

    Connections {
        target: page.model
        enabled: page.shakesPage
        function onShakeRequested() { shake.restart() }
    }
}
