import QtQuick
import TovuKit

// The bottom sheet over the host: an inert dimming layer and a rounded panel with
// a grab handle, "Skip" and the page, at most 92 % of the host's height (taller
// pages scroll inside). What it does lives in TovuQuickSheet.
TovuQuickSheet {
    id: sheet

    anchors.fill: parent
    contentSlot: slot
    // Right-to-left languages get the whole sheet mirrored, as the widget pages are:
    // the app's, or the library's own when its texts are in one.
    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft || TovuStyle.isRightToLeft()
    LayoutMirroring.childrenInherit: true

    Rectangle {
        anchors.fill: parent
        color: Qt.rgba(0, 0, 0, sheet.dimmingAlpha)
    }

    Rectangle {
        id: panel
        objectName: "panel"

        readonly property real contentTop: TovuSheetMetrics.handleTop + TovuSheetMetrics.handleHeight
                                           + TovuSheetMetrics.contentTopBelowHandle
        readonly property real wanted: contentTop + slot.height + TovuSheetMetrics.contentBottom
        // Lifted by the keyboard, the panel gets shorter rather than rising above the host's top.
        readonly property real limit: sheet.bottomOffset > 0
                                      ? Math.min(sheet.height * TovuSheetMetrics.maxHeightRatio,
                                                 sheet.height - sheet.bottomOffset - TovuSheetMetrics.keyboardTopMargin)
                                      : sheet.height * TovuSheetMetrics.maxHeightRatio

        enabled: !sheet.dismissing
        width: sheet.width
        height: Math.max(0, Math.min(panel.wanted, panel.limit))
        y: sheet.height - height - sheet.bottomOffset + sheet.panelTranslation
        color: TovuStyle.backgroundColor
        radius: TovuStyle.cornerRadius

        Rectangle {
            anchors.horizontalCenter: parent.horizontalCenter
            y: TovuSheetMetrics.handleTop
            width: TovuSheetMetrics.handleWidth
            height: TovuSheetMetrics.handleHeight
            radius: TovuSheetMetrics.handleCornerRadius
            color: TovuStyle.gray4
        }

        // Made only while progress shows: without it the panel is what it always was.
        Loader {
            anchors.left: parent.left
            anchors.leftMargin: TovuSheetMetrics.progressLeading
            y: TovuSheetMetrics.progressTop
            active: sheet.progress.shown
            sourceComponent: TovuProgressIndicator {
                progress: sheet.progress
            }
        }

        Flickable {
            id: scroller
            x: TovuSheetMetrics.contentSide
            y: panel.contentTop
            width: Math.max(0, panel.width - 2 * TovuSheetMetrics.contentSide)
            height: Math.max(0, panel.height - panel.contentTop - TovuSheetMetrics.contentBottom)
            contentWidth: width
            contentHeight: slot.height
            clip: true
            interactive: contentHeight > height
            boundsBehavior: Flickable.StopAtBounds

            Item {
                id: slot
                width: scroller.width
                height: sheet.currentPage ? sheet.currentPage.implicitHeight : 0
            }
        }

        Item {
            id: skip
            objectName: "skipButton"
            anchors.right: parent.right
            anchors.rightMargin: TovuSheetMetrics.skipTrailing
            y: TovuSheetMetrics.skipTop
            width: skipTitle.implicitWidth + 2 * TovuSheetMetrics.skipInsetHorizontal
            height: skipTitle.implicitHeight + 2 * TovuSheetMetrics.skipInsetVertical
            activeFocusOnTab: true

            Accessible.role: Accessible.Button
            Accessible.name: skipTitle.text
            Accessible.onPressAction: sheet.skipTapped()
            Keys.onSpacePressed: sheet.skipTapped()
            Keys.onReturnPressed: sheet.skipTapped()
            Keys.onEnterPressed: sheet.skipTapped()

            Text {
                id: skipTitle
                anchors.centerIn: parent
                textFormat: Text.PlainText
                text: qsTr("Skip")
                color: TovuStyle.gray
                font: TovuStyle.font(TovuSheetMetrics.skipFontSize, Font.Normal)
                Accessible.ignored: true
            }

            MouseArea {
                anchors.fill: parent
                onPressed: skip.forceActiveFocus(Qt.MouseFocusReason)
                onClicked: sheet.skipTapped()
            }
        }
    }
}
