import QtQuick
import TovuQuickDemo

// What happened, in two tabs: the log (the library's console lines, the
// manager's signals and the demo's own notes) and the responses the backend has
// stored, each one's JSON shown when it is selected.
Column {
    id: pane

    required property TovuQuickDemo demo
    readonly property string monospace: "DejaVu Sans Mono"

    spacing: 0

    SystemPalette { id: system }

    component Tab: Rectangle {
        id: tab
        property string text
        property bool current
        signal clicked()

        width: title.implicitWidth + 28
        height: 32
        radius: 8
        color: tab.current ? system.base : "transparent"
        Accessible.role: Accessible.PageTab
        Accessible.name: tab.text
        Accessible.onPressAction: tab.clicked()

        // Square lower corners: the tab joins the page under it.
        Rectangle {
            visible: tab.current
            y: tab.height - tab.radius
            width: tab.width
            height: tab.radius
            color: system.base
        }
        Text {
            id: title
            anchors.centerIn: parent
            textFormat: Text.PlainText
            text: tab.text
            color: system.windowText
            opacity: tab.current ? 1 : 0.65
            font.pixelSize: 13
            font.weight: tab.current ? Font.DemiBold : Font.Normal
            Accessible.ignored: true
        }
        MouseArea {
            anchors.fill: parent
            onClicked: tab.clicked()
        }
    }

    Row {
        spacing: 2
        Tab {
            text: qsTr("Log")
            current: !pane.demo.showingStoredResponses
            onClicked: pane.demo.showingStoredResponses = false
        }
        Tab {
            text: qsTr("Stored responses (%1)").arg(pane.demo.storedResponses.length)
            current: pane.demo.showingStoredResponses
            onClicked: pane.demo.showingStoredResponses = true
        }
    }

    Rectangle {
        width: pane.width
        height: pane.height - 32
        radius: 10
        color: system.base
        clip: true

        // The log: the newest line shows unless the reader scrolled back.
        ListView {
            id: log
            anchors.fill: parent
            anchors.margins: 10
            visible: !pane.demo.showingStoredResponses
            clip: true
            model: pane.demo.log
            boundsBehavior: Flickable.StopAtBounds
            property bool following: true
            onMovementEnded: following = atYEnd
            onCountChanged: if (following) Qt.callLater(positionViewAtEnd)
            delegate: Text {
                required property string display
                width: log.width
                wrapMode: Text.WrapAnywhere
                textFormat: Text.PlainText
                text: display
                color: system.text
                font.family: pane.monospace
                font.pixelSize: 11
            }

            Text {
                visible: log.count === 0
                width: log.width
                wrapMode: Text.Wrap
                textFormat: Text.PlainText
                text: qsTr("The library's console lines and the manager's signals appear here.")
                color: system.text
                opacity: 0.5
                font.pixelSize: 12
            }
        }

        Column {
            id: stored
            anchors.fill: parent
            anchors.margins: 10
            visible: pane.demo.showingStoredResponses
            spacing: 8
            property int selected: pane.demo.storedResponses.length - 1

            Connections {
                target: pane.demo
                // The newest shows after each refresh.
                function onStoredResponsesChanged() { stored.selected = pane.demo.storedResponses.length - 1 }
            }

            Row {
                width: parent.width
                spacing: 8
                Text {
                    width: parent.width - refresh.width - 8
                    height: refresh.height
                    verticalAlignment: Text.AlignVCenter
                    wrapMode: Text.Wrap
                    textFormat: Text.PlainText
                    text: pane.demo.storedResponses.length === 0
                          ? qsTr("Nothing stored yet: answer a survey to the end.")
                          : qsTr("What the backend stored, newest last (GET /dev/responses).")
                    color: system.text
                    font.pixelSize: 12
                }
                DemoButton {
                    id: refresh
                    text: qsTr("Refresh")
                    onClicked: pane.demo.refreshStoredResponses()
                }
            }

            ListView {
                id: list
                width: parent.width
                height: Math.min(contentHeight, 84)
                clip: true
                model: pane.demo.storedResponses
                delegate: Rectangle {
                    id: entry
                    required property int index
                    required property var modelData
                    width: list.width
                    height: 26
                    radius: 6
                    color: index === stored.selected ? system.highlight : "transparent"
                    Accessible.role: Accessible.ListItem
                    Accessible.name: entry.modelData.summary
                    Accessible.description: entry.modelData.details

                    Text {
                        x: 8
                        width: entry.width - 16
                        height: entry.height
                        verticalAlignment: Text.AlignVCenter
                        elide: Text.ElideMiddle
                        textFormat: Text.PlainText
                        text: entry.modelData.summary
                        color: entry.index === stored.selected ? system.highlightedText : system.text
                        font.pixelSize: 12
                        Accessible.ignored: true
                    }
                    MouseArea {
                        anchors.fill: parent
                        onClicked: stored.selected = entry.index
                    }
                }
            }

            Rectangle {
                width: parent.width
                height: 1
                color: Qt.darker(system.base, 1.15)
            }

            Flickable {
                width: parent.width
                height: parent.height - y
                clip: true
                contentWidth: width
                contentHeight: json.height
                boundsBehavior: Flickable.StopAtBounds

                TextEdit {
                    id: json
                    width: parent.width
                    readOnly: true
                    selectByMouse: true
                    wrapMode: TextEdit.WrapAnywhere
                    textFormat: TextEdit.PlainText
                    text: stored.selected >= 0 && stored.selected < pane.demo.storedResponses.length
                          ? pane.demo.storedResponses[stored.selected].json
                          : qsTr("Select a response to see it as the backend stored it.")
                    color: system.text
                    font.family: pane.monospace
                    font.pixelSize: 11
                }
            }
        }
    }
}
