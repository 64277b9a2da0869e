import QtQuick
import QtQuick.Window
import TovuKit
import TovuKit.Web

Window {
    id: window
    width: 390
    height: 844
    visible: true
    title: "TovuKit in Qt Quick"

    property bool surveyShown: true
    readonly property string surveyURL: backend + "/web/" + surveyIds[0]

    Component.onCompleted: {
        TovuSwiftUIWrapper.preWarmSurvey()
        // The native survey: the key is verified and the survey fetched ahead of time.
        TovuNativeSurveyManager.configure({ apiKey: "tovu-demo-key", surveyId: surveyIds[0], zone: "eu" })
    }

    // Told when a survey page has loaded.
    QtObject {
        id: surveyDelegate
        function handleSurveyLoaded(response) { status.text = "Loaded: " + JSON.stringify(response) }
    }

    Column {
        id: actions
        anchors { left: parent.left; right: parent.right; top: parent.top; margins: 12 }
        spacing: 8

        Text { id: status; text: "Loading…"; width: parent.width; elide: Text.ElideRight }

        Row {
            spacing: 8
            Repeater {
                model: [
                    { title: "Native", run: function () { TovuNativeSurveyManager.fetchAndPresentSurvey(window) } },
                    { title: "Embedded", run: function () { window.surveyShown = true } },
                    { title: "Full screen", run: function () {
                        TovuSwiftUIWrapper.presentFullScreenSurvey(window.surveyURL, surveyDelegate) } },
                    { title: "Fewest responses", run: function () {
                        TovuSwiftUIWrapper.loadLowestResponseSurvey(surveyIds, "", surveyDelegate) } }
                ]
                Rectangle {
                    required property var modelData
                    width: label.implicitWidth + 20; height: 36; radius: 8
                    color: "#007AFF"
                    Text { id: label; anchors.centerIn: parent; color: "white"; text: parent.modelData.title }
                    MouseArea { anchors.fill: parent; onClicked: parent.modelData.run() }
                }
            }
        }
    }

    TovuSwiftUIWrapper {
        anchors { left: parent.left; right: parent.right; top: actions.bottom; bottom: parent.bottom; topMargin: 12 }
        surveyURL: window.surveyURL
        delegate: surveyDelegate
        theme: ({ backgroundColor: "#F2F2F7", textColor: "#1C1C1E" })
        isSurveyVisible: window.surveyShown
        onIsSurveyVisibleChanged: window.surveyShown = isSurveyVisible
    }
}
