import QtQuick
import TovuQuickDemo

// A phone's bezel around the host app's screen, so it reads as a phone beside
// the demo's controls.
Rectangle {
    id: frame

    required property TovuQuickDemo demo
    readonly property int bezel: 12
    readonly property alias screen: screen

    width: screen.width + 2 * bezel
    height: screen.height + 2 * bezel
    radius: 22
    color: "#161618"
    border.width: 1
    border.color: "#5A5A60"

    HostScreen {
        id: screen
        x: frame.bezel
        y: frame.bezel
        demo: frame.demo
    }
}
