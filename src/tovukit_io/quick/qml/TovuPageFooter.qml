import QtQuick
import TovuKit

// The validation message (shown when the model refuses the input) and the action
// button (whose taps submit) under every question page.
Column {
    id: footer

    required property TovuQuestionViewModel model
    property color accent: TovuStyle.primaryColor
    // Whether a refusal shakes the message alone (the page stays).
    property bool shakesMessage: false

    width: parent ? parent.width : 0

    Text {
        Accessible.role: Accessible.StaticText
        Accessible.name: text
        width: parent ? parent.width : 0
        visible: footer.model.validationVisible
        wrapMode: Text.Wrap
        textFormat: Text.PlainText
        text: footer.model.validationMessage
        color: TovuStyle.red
        font: TovuStyle.font(TovuPageMetrics.validationFontSize, Font.Normal)
        transform: Translate { id: nudge }

        TovuShakeAnimation {
            id: shake
            shift: nudge
        }

        Connections {
            target: footer.model
            enabled: footer.shakesMessage
            function onShakeRequested() { shake.restart() }
        }
    }

    TovuActionButton {
        width: parent ? parent.width : 0
        visible: footer.model.actionVisible
        text: footer.model.actionTitle
        accent: footer.accent
        onTapped: footer.model.submit()
    }
}
