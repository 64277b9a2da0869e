// What TovuSwiftUIWrapper shows: the web view, the spinner over it and the
// close button. The wrapper makes one per survey and drives it through load(),
// empty() and stop(); everything it decides is in the view model.
import QtQuick
import QtWebEngine
import TovuKit.Web

Item {
    id: root
    required property TovuSurveyViewModel model
    required property QtObject channel
    required property var scripts
    property color background: "white"
    property color closeColor: "black"
    property color spinnerColor: "#8E8E93"

    function load(address) { web.url = address }
    function empty() { web.loadHtml("<html><body></body></html>") }
    function stop() { web.stop() }

    Rectangle { anchors.fill: parent; color: root.background }

    WebEngineView {
        id: web
        objectName: "surveyWebView"
        anchors.fill: parent
        webChannel: root.channel
        webChannelWorld: WebEngineScript.ApplicationWorld
        Component.onCompleted: userScripts.collection = root.scripts
        onLoadingChanged: function (info) {
            if (info.status === WebEngineView.LoadSucceededStatus)
                root.model.pageFinished()
            else if (info.status === WebEngineView.LoadFailedStatus)
                root.model.pageFailed(info.errorString)
        }
        onNavigationRequested: function (request) {
            const clicked = request.navigationType === WebEngineNavigationRequest.LinkClickedNavigation
            if (!root.model.acceptNavigation(request.url, clicked))
                request.reject()
        }
        onNewWindowRequested: function (request) {
            if (request.userInitiated)
                root.model.acceptNavigation(request.requestedUrl, true)
        }
    }

    Item {
        id: loader
        objectName: "loader"
        width: 24; height: 24
        anchors.centerIn: parent
        visible: root.model.isLoading
        property int step: 0
        Timer { interval: 83; repeat: true; running: loader.visible; onTriggered: loader.step = (loader.step + 1) % 12 }
        Repeater {
            model: 12
            Rectangle {
                required property int index
                x: loader.width / 2 - width / 2; y: 1
                width: 2.6; height: 6.6; radius: 1.3
                color: root.spinnerColor
                opacity: 1 - 0.75 * ((loader.step - index + 12) % 12) / 11
                transform: Rotation { origin.x: 1.3; origin.y: loader.height / 2 - 1; angle: index * 30 }
            }
        }
    }

    Text {
        id: closeButton
        objectName: "closeButton"
        text: "X"
        font.pixelSize: 20
        color: root.closeColor
        width: 30; height: 30
        horizontalAlignment: Text.AlignHCenter; verticalAlignment: Text.AlignVCenter
        anchors { top: parent.top; topMargin: 10; right: parent.right; rightMargin: 10 }
        visible: root.model.isCloseButtonVisible
        Accessible.role: Accessible.Button
        Accessible.name: qsTr("Close survey")
        MouseArea { anchors.fill: parent; onClicked: root.model.closeTapped() }
    }
}
