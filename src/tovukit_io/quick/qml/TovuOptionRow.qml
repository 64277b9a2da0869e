import QtQuick
import TovuKit

// An answer row with a radio or checkbox mark; chosen rows take the accent.
Rectangle {
    id: row

    property string text
    property bool chosen
    property bool checkbox
    property color accent: TovuStyle.primaryColor
    // A question's rows by default; the follow-up card's are smaller.
    property real rowHeight: TovuPageMetrics.optionRowHeight
    property real rowRadius: TovuPageMetrics.optionRowCornerRadius
    property real fontSize: TovuPageMetrics.optionRowFontSize
    property real textLeading: TovuPageMetrics.optionRowInsetLeading
    property real textTrailing: TovuPageMetrics.optionRowInsetTrailing
    property real markSize: checkbox ? TovuPageMetrics.checkboxSize : TovuPageMetrics.radioSize
    property real markLeadingInset: TovuPageMetrics.markLeading
    signal tapped()

    // The press bounce of a row that became chosen.
    function bounce() { press.restart() }

    width: parent ? parent.width : 0
    height: row.rowHeight
    radius: row.rowRadius
    border.width: TovuPageMetrics.optionRowBorderWidth
    border.color: row.chosen ? row.accent : TovuStyle.gray4
    color: row.chosen ? TovuStyle.withAlpha(row.accent, TovuPageMetrics.chosenFillAlpha) : TovuStyle.systemBackground
    activeFocusOnTab: true

    // A radio button or a check box, as a screen reader knows the widget pages' rows.
    Accessible.role: row.checkbox ? Accessible.CheckBox : Accessible.RadioButton
    Accessible.name: row.text
    Accessible.checkable: true
    Accessible.checked: row.chosen
    Accessible.onPressAction: row.tapped()
    Accessible.onToggleAction: row.tapped()
    Keys.onSpacePressed: row.tapped()
    Keys.onReturnPressed: row.tapped()
    Keys.onEnterPressed: row.tapped()
    // Arrows move between the rows of one list and never out of it.
    Keys.onUpPressed: row.moveFocus(false)
    Keys.onDownPressed: row.moveFocus(true)
    readonly property bool isOptionRow: true
    function moveFocus(forward) {
        const next = row.nextItemInFocusChain(forward)
        if (next && next.isOptionRow && next.parent === row.parent)
            next.forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason)
    }

    TovuFocusRing { cornerRadius: row.radius }

    SequentialAnimation {
        id: press
        NumberAnimation {
            target: row; property: "scale"; to: TovuPageMetrics.pressScale
            duration: TovuStyle.durationMs(TovuPageMetrics.pressSeconds)
        }
        NumberAnimation {
            target: row; property: "scale"; to: 1
            duration: TovuStyle.durationMs(TovuPageMetrics.pressSeconds)
        }
    }

    Rectangle {
        id: mark
        anchors.left: parent.left
        anchors.leftMargin: row.markLeadingInset
        anchors.verticalCenter: parent.verticalCenter
        width: row.markSize
        height: width
        radius: row.checkbox ? TovuPageMetrics.checkboxCornerRadius : width / 2
        border.width: row.checkbox ? TovuPageMetrics.checkboxBorderWidth : TovuPageMetrics.radioBorderWidth
        border.color: row.chosen ? row.accent : TovuStyle.gray3
        color: row.chosen ? row.accent : "transparent"

        Rectangle {
            anchors.centerIn: parent
            visible: row.chosen && !row.checkbox
            width: TovuPageMetrics.radioDotSize
            height: width
            radius: width / 2
            color: "white"
        }

        TovuSymbolIcon {
            anchors.centerIn: parent
            visible: row.chosen && row.checkbox
            width: TovuPageMetrics.checkGlyphSize
            height: width
            name: "checkmark"
            weight: Font.DemiBold
            color: "white"
        }
    }

    Text {
        anchors.left: parent.left
        anchors.leftMargin: row.textLeading
        anchors.right: parent.right
        anchors.rightMargin: row.textTrailing
        anchors.verticalCenter: parent.verticalCenter
        horizontalAlignment: Text.AlignLeft
        elide: Text.ElideRight
        textFormat: Text.PlainText
        text: row.text
        color: row.chosen ? row.accent : TovuStyle.label
        font: TovuStyle.font(row.fontSize, Font.Medium)
        Accessible.ignored: true
    }

    MouseArea {
        anchors.fill: parent
        onPressed: row.forceActiveFocus(Qt.MouseFocusReason)
        onClicked: row.tapped()
    }
}
