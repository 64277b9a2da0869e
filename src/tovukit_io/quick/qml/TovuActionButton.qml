import QtQuick
import TovuKit

// The accent-filled action of a page ("Next →", "Submit", the intro's start).
Rectangle {
    id: button

    property string text
    property color accent: TovuStyle.primaryColor
    signal tapped()

    implicitHeight: TovuPageMetrics.actionHeight
    radius: TovuPageMetrics.actionCornerRadius
    color: button.accent
    activeFocusOnTab: true

    Accessible.role: Accessible.Button
    Accessible.name: button.text
    Accessible.onPressAction: button.tapped()
    Keys.onSpacePressed: button.tapped()
    Keys.onReturnPressed: button.tapped()
    Keys.onEnterPressed: button.tapped()

    TovuFocusRing { cornerRadius: button.radius - TovuPageMetrics.focusRingWidth; onAccent: true }

    Text {
        anchors.fill: parent
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
        textFormat: Text.PlainText
        text: button.text
        color: "white"
        font: TovuStyle.font(TovuPageMetrics.actionFontSize, Font.DemiBold)
        Accessible.ignored: true
    }

    MouseArea {
        anchors.fill: parent
        onPressed: button.forceActiveFocus(Qt.MouseFocusReason)
        onClicked: button.tapped()
    }
}
