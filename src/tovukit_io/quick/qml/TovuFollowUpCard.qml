import QtQuick
import TovuKit

// What a chosen score asks next: its question, and a text area or radio rows.
Rectangle {
    id: card

    property string question
    property bool asksForText: true
    property var optionIds: []
    property var optionTexts: []
    property string selectedOptionId
    // The text shown in the area; edits go out through textEdited.
    property string text
    property color accent: TovuStyle.primaryColor
    signal textEdited(string text)
    signal optionTapped(string optionId)

    width: parent ? parent.width : 0
    height: content.height + 2 * TovuPageMetrics.followUpPadding
    radius: TovuPageMetrics.followUpCornerRadius
    color: TovuStyle.gray6

    Column {
        id: content
        x: TovuPageMetrics.followUpPadding
        y: TovuPageMetrics.followUpPadding
        width: parent.width - 2 * TovuPageMetrics.followUpPadding
        spacing: TovuPageMetrics.followUpSpacing

        Text {
            Accessible.role: Accessible.StaticText
            Accessible.name: text
            width: parent ? parent.width : 0
            wrapMode: Text.Wrap
            textFormat: Text.PlainText
            text: card.question
            color: TovuStyle.textColor
            font: TovuStyle.font(TovuPageMetrics.followUpTitleFontSize, Font.DemiBold)
        }

        Rectangle {
            width: parent ? parent.width : 0
            height: TovuPageMetrics.followUpTextHeight
            visible: card.asksForText
            radius: TovuPageMetrics.followUpTextCornerRadius
            color: TovuStyle.systemBackground
            border.width: answer.activeFocus ? TovuPageMetrics.fieldFocusedBorderWidth
                                             : TovuPageMetrics.followUpTextBorderWidth
            border.color: answer.activeFocus ? card.accent : TovuStyle.gray4

            TextEdit {
                id: answer
                anchors.fill: parent
                padding: TovuPageMetrics.followUpTextMargin
                wrapMode: TextEdit.Wrap
                textFormat: TextEdit.PlainText
                clip: true
                activeFocusOnTab: true
                selectByMouse: true
                color: TovuStyle.label
                selectionColor: card.accent
                font: TovuStyle.font(TovuPageMetrics.followUpTextFontSize, Font.Normal)
                text: card.text
                onTextChanged: if (text !== card.text) card.textEdited(text)
                Accessible.role: Accessible.EditableText
                Accessible.name: card.question
                Accessible.multiLine: true
            }
        }

        Column {
            width: parent ? parent.width : 0
            visible: !card.asksForText
            spacing: TovuPageMetrics.followUpChoiceSpacing

            Repeater {
                model: card.optionIds

                TovuOptionRow {
                    required property int index
                    required property string modelData

                    objectName: modelData
                    text: card.optionTexts[index]
                    chosen: card.selectedOptionId === modelData
                    accent: card.accent
                    rowHeight: TovuPageMetrics.followUpChoiceHeight
                    rowRadius: TovuPageMetrics.followUpChoiceCornerRadius
                    fontSize: TovuPageMetrics.followUpChoiceFontSize
                    textLeading: TovuPageMetrics.followUpChoiceInsetLeading
                    textTrailing: TovuPageMetrics.followUpChoiceInsetTrailing
                    markSize: TovuPageMetrics.followUpRadioSize
                    markLeadingInset: TovuPageMetrics.followUpRadioLeading
                    onTapped: card.optionTapped(modelData)
                }
            }
        }
    }
}
