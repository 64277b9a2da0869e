import QtQuick
import TovuKit

// The survey's intro: its text and the start button.
Column {
    id: page

    required property TovuIntroViewModel model

    width: parent ? parent.width : 0
    spacing: TovuPageMetrics.introSpacing

    Text {
        Accessible.role: Accessible.StaticText
        Accessible.name: text
        width: parent ? parent.width : 0
        visible: page.model.hasContent
        wrapMode: Text.Wrap
        textFormat: Text.PlainText
        text: page.model.content
        color: TovuStyle.textColor
        font: TovuStyle.font(TovuPageMetrics.introFontSize, Font.Normal)
    }

    TovuActionButton {
        width: parent ? parent.width : 0
        text: page.model.buttonTitle
        onTapped: page.model.start()
    }
}
