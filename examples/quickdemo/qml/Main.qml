import QtQuick
import QtQuick.Window
import TovuQuickDemo

// tovu-quickdemo's window: the host app's phone screen, where surveys appear,
// and beside it the controls and what happened. What it does is `demo`'s.
Window {
    id: window

    required property TovuQuickDemo demo
    // What the manager is given as the host: the phone's screen, an Item.
    readonly property Item hostScreen: phone.screen

    width: side.x + side.width + 16
    height: phone.height + 32
    title: qsTr("TovuKit Qt Quick demo")
    color: system.window

    SystemPalette { id: system }

    PhoneFrame {
        id: phone
        x: 16
        y: 16
        demo: window.demo
    }

    Column {
        id: side
        x: phone.x + phone.width + 20
        y: 16
        width: 480
        height: window.height - 32
        spacing: 12

        Column {
            id: heading
            width: side.width
            spacing: 4

            Text {
                textFormat: Text.PlainText
                text: qsTr("TovuKit Qt Quick demo")
                color: system.windowText
                font.pixelSize: 22
                font.weight: Font.Bold
            }
            Text {
                width: side.width
                wrapMode: Text.Wrap
                textFormat: Text.PlainText
                text: qsTr("Native surveys in the Qt Quick sheet over a QML host's screen. Backend: tovu-devserver at "
                           + "%1 (key %2, %3 sample surveys), in this process.")
                      .arg(window.demo.backendUrl).arg(window.demo.apiKey).arg(window.demo.samples.length)
                color: system.windowText
                opacity: 0.7
                font.pixelSize: 12
            }
        }

        ControlPanel {
            id: controls
            width: side.width
            demo: window.demo
            host: phone.screen
        }

        ActivityPane {
            width: side.width
            height: side.height - heading.height - controls.height - 2 * side.spacing
            demo: window.demo
        }
    }
}
