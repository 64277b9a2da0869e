import QtQuick
import TovuQuickDemo

// The demo's controls: which survey (a sample by collector id or survey id, or
// any id typed in), how to show it over `host` (now, as an intercept after 3 s,
// or the sample with the fewest responses), its look, and the network (online
// or offline, the queue and its flush).
//
// Showing and flushing are the manager's own calls, as a QML app makes them on
// the `TovuNativeSurveyManager` singleton; this demo drives a manager of its
// own (`demo.manager`), with an offline switch and a queue kept in memory.
Column {
    id: panel

    required property TovuQuickDemo demo
    required property Item host
    readonly property var manager: demo.manager
    property int queued: 0
    property int countdown: 0
    property bool intercepting: false

    function refreshQueued() { panel.queued = panel.manager.queuedResponseCount() }
    function stopCountdown() { countdownTimer.stop(); panel.countdown = 0; panel.intercepting = false }

    spacing: 12

    SystemPalette { id: system }

    component Hint: Text {
        width: parent ? parent.width : 0
        wrapMode: Text.Wrap
        textFormat: Text.PlainText
        color: system.windowText
        opacity: 0.6
        font.pixelSize: 12
    }

    component Caption: Text {
        width: 86
        height: 30
        verticalAlignment: Text.AlignVCenter
        textFormat: Text.PlainText
        color: system.text
        font.pixelSize: 13
    }

    Connections {
        target: panel.manager
        function onResponseSent() { panel.refreshQueued() }
        function onResponseQueued(responseId, count) { panel.queued = count }
        function onQueueFlushed() { panel.refreshQueued() }
        function onSurveyShown() { panel.stopCountdown() }
        function onPresentationRefused() { panel.stopCountdown() }
    }
    Connections {
        target: panel.demo
        function onManagerChanged() { panel.refreshQueued() }
        // What was configured shows in the field, also when a sample was chosen.
        function onConfiguredIdChanged() { idField.text = panel.demo.targetId }
    }
    Component.onCompleted: {
        panel.refreshQueued()
        idField.text = panel.demo.targetId
    }

    Timer {
        id: countdownTimer
        interval: 1000
        repeat: true
        onTriggered: if (--panel.countdown <= 0) stop()
    }

    DemoGroup {
        title: qsTr("Survey")
        width: panel.width

        // The bundled samples in samples/surveys/, the one configured in the accent.
        Grid {
            id: samples
            width: parent.width
            columns: 2
            spacing: 6

            Repeater {
                model: panel.demo.samples

                DemoButton {
                    required property int index
                    required property var modelData
                    width: (samples.width - samples.spacing) / 2
                    implicitHeight: 28
                    fontSize: 12
                    text: modelData.title
                    primary: index === panel.demo.sampleIndex
                    onClicked: panel.demo.chooseSample(index)
                }
            }
        }

        Row {
            spacing: 8
            Caption { text: qsTr("Configure by") }
            DemoChoice {
                width: 220
                options: [qsTr("Collector id"), qsTr("Survey id")]
                currentIndex: panel.demo.bySurveyId ? 1 : 0
                onChosen: function (index) { panel.demo.chooseKind(index === 1) }
            }
        }

        Row {
            spacing: 8
            Caption { text: qsTr("Id") }
            Rectangle {
                width: panel.width - 24 - 86 - 2 * 8 - configure.width
                height: 30
                radius: 7
                color: system.base
                border.width: idField.activeFocus ? 2 : 1
                border.color: idField.activeFocus ? system.highlight : Qt.darker(system.button, 1.25)

                TextInput {
                    id: idField
                    anchors.fill: parent
                    anchors.leftMargin: 8
                    anchors.rightMargin: 8
                    verticalAlignment: TextInput.AlignVCenter
                    clip: true
                    color: system.text
                    selectByMouse: true
                    font.pixelSize: 13
                    Accessible.role: Accessible.EditableText
                    Accessible.name: qsTr("Id")
                    onAccepted: panel.demo.configureId(panel.demo.bySurveyId, text)
                }
            }
            DemoButton {
                id: configure
                text: qsTr("Configure")
                onClicked: panel.demo.configureId(panel.demo.bySurveyId, idField.text)
            }
        }

        Hint {
            text: qsTr("configure(apiKey, id, zone) with the demo key: the key is verified, then the survey "
                       + "pre-fetched. Type any id (an unknown one shows how a failure is reported).")
        }
    }

    DemoGroup {
        title: qsTr("Show it")
        width: panel.width

        Row {
            id: showButtons
            spacing: 8
            readonly property real each: (parent.width - 2 * spacing) / 3

            DemoButton {
                width: showButtons.each
                primary: true
                text: qsTr("Show now")
                onClicked: {
                    panel.demo.note("fetchAndPresentSurvey(host)")
                    panel.manager.fetchAndPresentSurvey(panel.host)
                }
            }
            DemoButton {
                width: showButtons.each
                text: qsTr("Intercept in %1 s").arg(panel.demo.interceptSeconds)
                onClicked: {
                    panel.demo.note("startIntercept(%1, host)".arg(panel.demo.interceptSeconds))
                    panel.manager.startIntercept(panel.demo.interceptSeconds, panel.host)
                    panel.countdown = panel.demo.interceptSeconds
                    panel.intercepting = true
                    countdownTimer.restart()
                }
            }
            DemoButton {
                width: showButtons.each
                text: qsTr("Fewest responses")
                onClicked: {
                    panel.demo.note("fetchAndPresentLowestResponseSurvey(%1 sample ids, host)"
                                    .arg(panel.demo.sampleSurveyIds.length))
                    panel.manager.fetchAndPresentLowestResponseSurvey(panel.demo.sampleSurveyIds, panel.host)
                }
            }
        }

        Hint {
            text: !panel.intercepting ? qsTr("The survey opens over the phone's screen, an Item of this window.")
                  : panel.countdown > 0 ? qsTr("The survey intercepts the app in %1 s…").arg(panel.countdown)
                  : qsTr("Intercepting now…")
        }
    }

    Row {
        width: panel.width
        spacing: 12

        DemoGroup {
            title: qsTr("Look")
            width: (panel.width - 12) / 2

            DemoChoice {
                width: parent.width
                options: [qsTr("Light"), qsTr("Dark")]
                currentIndex: panel.demo.dark ? 1 : 0
                onChosen: function (index) { panel.demo.setLook(index === 1, panel.demo.theme) }
            }
            DemoChoice {
                width: parent.width
                options: [qsTr("Survey's"), qsTr("Host"), panel.demo.primaryColor.toString().toUpperCase()]
                currentIndex: ["survey", "host", "primaryColor"].indexOf(panel.demo.theme)
                onChosen: function (index) {
                    panel.demo.setLook(panel.demo.dark, ["survey", "host", "primaryColor"][index])
                }
            }
            DemoChoice {
                objectName: "progress"
                width: parent.width
                options: [qsTr("Progress off"), qsTr("Progress on")]
                currentIndex: panel.demo.showsProgress ? 1 : 0
                onChosen: function (index) { panel.demo.showsProgress = index === 1 }
            }
            Hint { text: qsTr("The theme: the survey's, the host app's, or only a primary colour. It applies from the next page on.") }
        }

        DemoGroup {
            title: qsTr("Network")
            width: (panel.width - 12) / 2

            DemoButton {
                width: parent.width
                enabled: !panel.demo.switching
                text: panel.demo.online ? qsTr("Online — go offline") : qsTr("Offline — go online")
                onClicked: panel.demo.setOnline(!panel.demo.online)
            }
            Hint {
                text: panel.demo.online ? qsTr("Responses are sent as they are finished.")
                                        : qsTr("The backend is unreachable and the path monitor says so: finished "
                                               + "responses wait in the queue.")
            }
            Row {
                width: parent.width
                spacing: 8

                Text {
                    width: parent.width - flush.width - 8
                    height: flush.height
                    verticalAlignment: Text.AlignVCenter
                    textFormat: Text.PlainText
                    text: qsTr("Queued: %1").arg(panel.queued)
                    color: system.text
                    font.pixelSize: 13
                    font.weight: Font.DemiBold
                }
                DemoButton {
                    id: flush
                    text: qsTr("Flush queue")
                    enabled: panel.queued > 0
                    onClicked: {
                        const waiting = panel.queued
                        panel.demo.note("flushQueue()")
                        panel.manager.flushQueue(function (allSent) {
                            panel.demo.note(allSent ? qsTr("Flush: all %1 response(s) sent").arg(waiting)
                                                    : qsTr("Flush: some responses failed and wait in the queue"))
                            panel.refreshQueued()
                        })
                    }
                }
            }
        }
    }
}
