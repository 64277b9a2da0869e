import QtQuick
import TovuKit

// A rating question: one row of buttons sharing the width in whole points (the
// first ones a point wider where it does not divide), optional column labels under
// them, and the follow-up that prompts (its text is never reported).
TovuQuestionPage {
    id: page

    readonly property int count: page.model.buttonCount
    readonly property bool labelled: page.model.columnLabels.length > 0

    spacing: TovuPageMetrics.ratingSpacing

    TovuPageTitle { text: page.model.title }

    Row {
        id: buttons
        readonly property int available: Math.max(0, Math.floor(width - (page.count - 1) * spacing))
        readonly property int columnWidth: Math.floor(available / Math.max(1, page.count))
        readonly property int leftover: available % Math.max(1, page.count)

        width: parent ? parent.width : 0
        spacing: TovuPageMetrics.ratingButtonSpacing

        Repeater {
            model: page.count

            Column {
                id: column
                required property int index

                width: buttons.columnWidth + (index < buttons.leftover ? 1 : 0)
                spacing: TovuPageMetrics.columnLabelSpacing

                TovuRatingButton {
                    width: parent ? parent.width : 0
                    model: page.model
                    rating: column.index + 1
                    accent: page.accent
                    onTapped: {
                        page.model.rate(rating)
                        if (page.model.rating === rating)
                            bounce()
                    }
                }

                Text {
                    width: parent ? parent.width : 0
                    visible: page.labelled
                    horizontalAlignment: Text.AlignHCenter
                    elide: Text.ElideRight
                    fontSizeMode: Text.HorizontalFit
                    minimumPixelSize: Math.max(1, Math.floor(TovuPageMetrics.columnLabelFontSize
                                                              * TovuPageMetrics.columnLabelMinimumScale))
                    textFormat: Text.PlainText
                    text: page.model.columnLabels[column.index] !== undefined ? page.model.columnLabels[column.index] : ""
                    color: TovuStyle.gray
                    font: TovuStyle.font(TovuPageMetrics.columnLabelFontSize, Font.Normal)
                    // The button's name carries the label for a screen reader.
                    Accessible.ignored: true
                }
            }
        }
    }

    TovuFollowUpCard {
        visible: page.model.followUpVisible
        question: page.model.followUpText
        accent: page.accent
    }

    TovuPageFooter {
        model: page.model
        accent: page.accent
        spacing: page.spacing
    }
}
