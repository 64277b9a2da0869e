import QtQuick

// A titled card of the demo's controls; what goes inside stacks in a column.
Column {
    id: group

    property string title
    default property alias content: body.data

    spacing: 5

    SystemPalette { id: system }

    Text {
        textFormat: Text.PlainText
        text: group.title.toUpperCase()
        color: system.windowText
        opacity: 0.6
        font.pixelSize: 11
        font.weight: Font.DemiBold
        font.letterSpacing: 0.6
    }

    Rectangle {
        width: group.width
        height: body.height + 24
        radius: 12
        color: system.base
        border.width: 1
        border.color: Qt.darker(system.window, 1.1)

        Column {
            id: body
            x: 12
            y: 12
            width: parent.width - 24
            spacing: 8
        }
    }
}
