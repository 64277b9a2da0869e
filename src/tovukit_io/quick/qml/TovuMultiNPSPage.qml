import QtQuick
import TovuKit

// A multi-NPS question: one labelled 0 to 10 scale per row, each with its end
// labels and a hairline under it. Only the message shakes when rows are missing.
TovuQuestionPage {
    id: page

    spacing: TovuPageMetrics.multiNpsSpacing
    shakesPage: false

    TovuPageTitle { text: page.model.title }

    TovuPageHint { text: page.model.subtitle }

    Column {
        width: parent ? parent.width : 0
        spacing: TovuPageMetrics.multiNpsRowsSpacing

        Repeater {
            model: page.model.optionIds

            Column {
                id: scaleRow
                required property int index
                required property string modelData
                readonly property string label: page.model.optionTexts[index]

                width: parent ? parent.width : 0
                spacing: TovuPageMetrics.multiNpsRowSpacing

                Text {
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                    width: parent ? parent.width : 0
                    wrapMode: Text.Wrap
                    textFormat: Text.PlainText
                    text: scaleRow.label
                    color: TovuStyle.textColor
                    font: TovuStyle.font(TovuPageMetrics.multiNpsRowLabelFontSize, Font.DemiBold)
                }

                TovuScoreRow {
                    width: parent ? parent.width : 0
                    height: TovuPageMetrics.multiNpsScoreHeight
                    objectName: scaleRow.modelData
                    model: page.model
                    rowId: scaleRow.modelData
                    spacing: TovuPageMetrics.scoreSpacing
                    cellHeight: TovuPageMetrics.multiNpsScoreHeight
                    cornerRadius: TovuPageMetrics.multiNpsScoreCornerRadius
                    fontSize: TovuPageMetrics.multiNpsScoreFontSize
                    titleColor: TovuStyle.label
                    description: scaleRow.label
                    mirrored: LayoutMirroring.enabled
                    Accessible.role: Accessible.Row
                }

                TovuEndLabels {
                    low: page.model.lowLabel
                    high: page.model.highLabel
                    lowColor: page.model.lowLabelColor
                    highColor: page.model.highLabelColor
                    fontSize: TovuPageMetrics.multiNpsEndLabelFontSize
                    weight: Font.DemiBold
                }

                Rectangle {
                    width: parent ? parent.width : 0
                    height: TovuPageMetrics.multiNpsSeparatorHeight
                    color: TovuStyle.gray5
                }
            }
        }
    }

    TovuPageFooter {
        model: page.model
        accent: page.accent
        spacing: page.spacing
        shakesMessage: true
    }
}
