import QtQuick

// A push button of the demo's controls; `primary` ones take the accent.
Rectangle {
    id: button

    property string text
    property bool primary: false
    property int fontSize: 13
    signal clicked()

    implicitWidth: label.implicitWidth + 28
    implicitHeight: 32
    radius: 8
    opacity: enabled ? 1 : 0.4
    color: primary ? system.highlight : area.pressed ? system.mid : system.button
    border.width: primary ? 0 : 1
    border.color: Qt.darker(system.button, 1.25)
    activeFocusOnTab: true

    Accessible.role: Accessible.Button
    Accessible.name: button.text
    Accessible.onPressAction: if (button.enabled) button.clicked()
    Keys.onSpacePressed: button.clicked()

    SystemPalette { id: system }

    Text {
        id: label
        anchors.centerIn: parent
        width: Math.min(implicitWidth, button.width - 12)
        elide: Text.ElideRight
        textFormat: Text.PlainText
        text: button.text
        color: button.primary ? system.highlightedText : system.buttonText
        font.pixelSize: button.fontSize
        font.weight: Font.Medium
        Accessible.ignored: true
    }

    MouseArea {
        id: area
        anchors.fill: parent
        onClicked: button.clicked()
    }
}
