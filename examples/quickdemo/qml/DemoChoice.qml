import QtQuick

// One of a few choices side by side, as a segmented control: "Light | Dark".
Rectangle {
    id: choice

    property var options: []
    property int currentIndex: 0
    signal chosen(int index)

    // Segments share the width; each wants about this much.
    implicitWidth: 4 + choice.options.length * 92 + 2 * Math.max(0, choice.options.length - 1)
    implicitHeight: 30
    radius: 8
    color: Qt.darker(system.button, 1.08)

    SystemPalette { id: system }

    Row {
        id: segments
        anchors.centerIn: parent
        spacing: 2

        Repeater {
            model: choice.options

            Rectangle {
                id: segment
                required property int index
                required property string modelData
                readonly property bool current: index === choice.currentIndex

                width: (choice.width - 4 - 2 * (choice.options.length - 1)) / choice.options.length
                height: choice.height - 4
                radius: 6
                color: segment.current ? system.base : "transparent"
                border.width: segment.current ? 1 : 0
                border.color: Qt.darker(system.button, 1.2)

                Accessible.role: Accessible.RadioButton
                Accessible.name: segment.modelData
                Accessible.checkable: true
                Accessible.checked: segment.current
                Accessible.onPressAction: choice.chosen(segment.index)

                Text {
                    anchors.centerIn: parent
                    width: Math.min(implicitWidth, parent.width - 8)
                    elide: Text.ElideRight
                    textFormat: Text.PlainText
                    text: segment.modelData
                    color: segment.current ? system.text : system.windowText
                    opacity: segment.current ? 1 : 0.75
                    font.pixelSize: 12
                    font.weight: segment.current ? Font.DemiBold : Font.Normal
                    Accessible.ignored: true
                }

                MouseArea {
                    anchors.fill: parent
                    onClicked: choice.chosen(segment.index)
                }
            }
        }
    }
}
