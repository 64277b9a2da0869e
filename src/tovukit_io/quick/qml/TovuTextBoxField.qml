import QtQuick
import TovuKit

// One text field of a text-box page: the accent border while editing, a red one
// after a refused submit until it gains focus again.
Rectangle {
    id: field

    property alias text: input.text
    property string placeholder
    property string accessibleName
    property bool invalid
    property bool email
    property color accent: TovuStyle.primaryColor
    readonly property alias input: input
    signal focused()

    width: parent ? parent.width : 0
    height: TovuPageMetrics.fieldHeight
    radius: TovuPageMetrics.fieldCornerRadius
    color: TovuStyle.systemBackground
    border.width: input.activeFocus ? TovuPageMetrics.fieldFocusedBorderWidth : TovuPageMetrics.fieldBorderWidth
    border.color: field.invalid ? TovuStyle.red : input.activeFocus ? field.accent : TovuStyle.gray4

    Behavior on border.color {
        ColorAnimation { duration: TovuStyle.durationMs(TovuPageMetrics.fieldFocusSeconds) }
    }

    TextInput {
        id: input
        anchors.fill: parent
        leftPadding: TovuPageMetrics.fieldPadding
        rightPadding: TovuPageMetrics.fieldPadding
        verticalAlignment: TextInput.AlignVCenter
        clip: true
        activeFocusOnTab: true
        selectByMouse: true
        color: TovuStyle.label
        selectionColor: field.accent
        font: TovuStyle.font(TovuPageMetrics.fieldFontSize, Font.Normal)
        inputMethodHints: field.email ? (Qt.ImhEmailCharactersOnly | Qt.ImhNoAutoUppercase) : Qt.ImhNone
        onActiveFocusChanged: if (activeFocus) field.focused()

        Accessible.role: Accessible.EditableText
        Accessible.name: field.accessibleName
        Accessible.description: field.placeholder

        Text {
            anchors.fill: parent
            leftPadding: input.leftPadding
            rightPadding: input.rightPadding
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
            visible: input.text.length === 0 && input.preeditText.length === 0
            textFormat: Text.PlainText
            text: field.placeholder
            color: TovuStyle.secondaryLabel
            font: input.font
            Accessible.ignored: true
        }
    }
}
