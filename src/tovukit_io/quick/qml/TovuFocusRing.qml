import QtQuick
import TovuKit

// Where the keyboard is: a ring in the theme's colour around its parent control while
// it has focus and the respondent moves with keys (a tap shows none).
Rectangle {
    property real cornerRadius: 0
    // On a control filled with the theme's colour the ring takes the background's.
    property bool onAccent: false

    anchors.fill: parent
    anchors.margins: onAccent ? TovuPageMetrics.focusRingWidth : 0
    radius: cornerRadius
    color: "transparent"
    border.width: TovuPageMetrics.focusRingWidth
    border.color: onAccent ? TovuStyle.systemBackground : TovuStyle.primaryColor
    visible: parent !== null && parent.activeFocus && TovuStyle.keyboardNavigation
    Accessible.ignored: true
}
