import QtQuick
import TovuKit

// The progress indicator a host may turn on: a thin bar in the theme's accent on a track
// in the handle's grey, then "3 of 7". What a screen reader hears is TovuProgressItem's.
TovuProgressItem {
    id: indicator

    width: TovuSheetMetrics.progressWidth
    height: TovuSheetMetrics.progressHeight
    visible: indicator.progress && indicator.progress.shown

    Accessible.role: Accessible.ProgressBar
    Accessible.name: indicator.progress ? indicator.progress.accessibleName : ""

    Rectangle {
        id: track
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        width: TovuSheetMetrics.progressBarWidth
        height: TovuSheetMetrics.progressBarHeight
        radius: height / 2
        color: TovuStyle.gray4

        Rectangle {
            anchors.left: parent.left
            width: parent.width * (indicator.progress ? indicator.progress.fraction : 0)
            height: parent.height
            radius: parent.radius
            color: TovuStyle.primaryColor
        }
    }

    Text {
        anchors.left: track.right
        anchors.leftMargin: TovuSheetMetrics.progressTextGap
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        textFormat: Text.PlainText
        text: indicator.progress ? indicator.progress.text : ""
        color: TovuStyle.gray
        font: TovuStyle.font(TovuSheetMetrics.progressFontSize, Font.Normal)
        Accessible.ignored: true
    }
}
