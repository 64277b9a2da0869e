import QtQuick
import TovuKit

// What a chosen NPS score asks next: its question, and a text area or radio rows.
Rectangle {
    id: card

    required property TovuNPSQuestionViewModel model
    property color accent: TovuStyle.primaryColor
    readonly property bool asksForText: card.model.followUpKind === TovuNPSQuestionViewModel.FollowUpKind.text

    width: parent ? parent.width : 0
    height: content.height + 2 * TovuPageMetrics.followUpPadding
    visible: card.model.followUpShown
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
            text: card.model.followUpQuestion
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
                text: card.model.followUpText
                onTextChanged: if (text !== card.model.followUpText) card.model.followUpText = text
                Accessible.role: Accessible.EditableText
                Accessible.name: card.model.followUpQuestion
                Accessible.multiLine: true
            }
        }

        Column {
            width: parent ? parent.width : 0
            visible: !card.asksForText
            spacing: TovuPageMetrics.followUpChoiceSpacing

            Repeater {
                model: card.model.followUpOptionIds

                TovuOptionRow {
                    required property int index
                    required property string modelData

                    objectName: modelData
                    text: card.model.followUpOptionTexts[index]
                    chosen: card.model.selectedFollowUpOptionId === modelData
                    accent: card.accent
                    rowHeight: TovuPageMetrics.followUpChoiceHeight
                    rowRadius: TovuPageMetrics.followUpChoiceCornerRadius
                    fontSize: TovuPageMetrics.followUpChoiceFontSize
                    textLeading: TovuPageMetrics.followUpChoiceInsetLeading
                    textTrailing: TovuPageMetrics.followUpChoiceInsetTrailing
                    markSize: TovuPageMetrics.followUpRadioSize
                    markLeadingInset: TovuPageMetrics.followUpRadioLeading
                    onTapped: card.model.selectFollowUpOption(modelData)
                }
            }
        }
    }
}
