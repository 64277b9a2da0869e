import QtQuick
import TovuKit

// The closing page: a green check mark, a title and a line under it; fades and
// zooms in, and opens the question's redirect shortly after.
Item {
    id: page

    required property TovuThankYouViewModel model
    // 0 → 1 as the page comes in; a spring may overshoot 1 slightly.
    property real entrance: 0

    width: parent ? parent.width : 0
    implicitHeight: column.height + 2 * TovuPageMetrics.thankYouMargin

    Column {
        id: column
        y: TovuPageMetrics.thankYouMargin
        width: parent ? parent.width : 0
        spacing: TovuPageMetrics.thankYouSpacing
        opacity: Math.max(0, Math.min(1, page.entrance))
        scale: TovuPageMetrics.thankYouStartScale + (1 - TovuPageMetrics.thankYouStartScale) * Math.max(0, page.entrance)

        Rectangle {
            anchors.horizontalCenter: parent.horizontalCenter
            width: TovuPageMetrics.thankYouDiscSize
            height: width
            radius: width / 2
            color: page.model.discColor

            TovuSymbolIcon {
                anchors.centerIn: parent
                width: TovuPageMetrics.thankYouIconSize
                height: width
                name: "checkmark.circle.fill"
                weight: Font.Medium
                color: page.model.iconColor
                Accessible.role: Accessible.Graphic
                Accessible.name: page.model.iconAccessibleName
            }
        }

        Text {
            Accessible.role: Accessible.StaticText
            Accessible.name: text
            width: parent ? parent.width : 0
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            textFormat: Text.PlainText
            text: page.model.title
            color: TovuStyle.textColor
            font: TovuStyle.font(TovuPageMetrics.thankYouTitleFontSize, Font.Bold)
        }

        Text {
            Accessible.role: Accessible.StaticText
            Accessible.name: text
            width: parent ? parent.width : 0
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            textFormat: Text.PlainText
            text: page.model.subtitle
            color: TovuStyle.gray
            font: TovuStyle.font(TovuPageMetrics.thankYouSubtitleFontSize, Font.Normal)
        }
    }

    Component.onCompleted: {
        TovuStyle.spring(page, "entrance", 0, 1, TovuPageMetrics.thankYouEntranceSeconds,
                         TovuPageMetrics.thankYouDampingRatio, TovuPageMetrics.thankYouInitialVelocity,
                         TovuPageMetrics.thankYouEntranceDelaySeconds)
        page.model.scheduleRedirect()
    }
}
