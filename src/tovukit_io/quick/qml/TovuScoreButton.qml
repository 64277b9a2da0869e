import QtQuick
import TovuKit

// One point of a 0 to 10 scale, in the look its model gives it; a chosen score bumps.
Rectangle {
    id: button

    required property int score
    // `background`, `title`, `border` and `borderWidth`, from the page's model.
    property var look: ({})
    property real fontSize: TovuPageMetrics.scoreFontSize
    signal tapped()

    function bounce() { bump.restart() }

    height: TovuPageMetrics.scoreHeight
    radius: TovuPageMetrics.scoreCornerRadius
    color: button.look.background !== undefined ? button.look.background : "transparent"
    border.color: button.look.border !== undefined ? button.look.border : "transparent"
    border.width: button.look.borderWidth !== undefined ? button.look.borderWidth : 0
    activeFocusOnTab: true

    Accessible.role: Accessible.Button
    Accessible.name: qsTr("Score %1").arg(button.score)
    Accessible.onPressAction: button.tapped()
    Keys.onSpacePressed: button.tapped()
    Keys.onReturnPressed: button.tapped()
    Keys.onEnterPressed: button.tapped()

    SequentialAnimation {
        id: bump
        NumberAnimation {
            target: button; property: "scale"; to: TovuPageMetrics.scoreTapScale
            duration: TovuStyle.durationMs(TovuPageMetrics.scoreTapSeconds)
        }
        NumberAnimation {
            target: button; property: "scale"; to: 1
            duration: TovuStyle.durationMs(TovuPageMetrics.scoreTapSeconds)
        }
    }

    Text {
        anchors.fill: parent
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        textFormat: Text.PlainText
        text: button.score
        color: button.look.title !== undefined ? button.look.title : TovuStyle.label
        font: TovuStyle.font(button.fontSize, Font.DemiBold)
        Accessible.ignored: true
    }

    MouseArea {
        anchors.fill: parent
        onPressed: button.forceActiveFocus(Qt.MouseFocusReason)
        onClicked: button.tapped()
    }
}
