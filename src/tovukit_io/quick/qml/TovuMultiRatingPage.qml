import QtQuick
import TovuKit

// A multi-rating question: one block per row, its text, a row of rating cells (one
// per column, sharing the width below six columns, else at their natural widths and
// scrolling sideways) with the column labels under them, and a hairline. Each row of
// cells is one painted item: a ten by ten grid stays a few dozen items.
TovuQuestionPage {
    id: page

    readonly property bool faces: page.model.variantName === "EMOJI"
    readonly property bool labelled: page.model.showsColumnLabels
    readonly property font captionFont: TovuStyle.font(TovuPageMetrics.columnLabelFontSize, Font.Normal)
    readonly property real captionHeight: TovuPageMetrics.columnLabelSpacing + captionMetrics.height
    readonly property real cellHeight: page.faces ? TovuPageMetrics.multiRatingFaceHeight
                                                  : TovuPageMetrics.multiRatingSymbolHeight
    readonly property real stripHeight: page.labelled ? TovuPageMetrics.multiRatingLabelledStripHeight
                                                      : TovuPageMetrics.multiRatingStripHeight
    readonly property var naturalWidths: page.model.naturalColumnWidths(page.captionFont)

    spacing: TovuPageMetrics.multiRatingSpacing
    shakesPage: false

    FontMetrics {
        id: captionMetrics
        font: page.captionFont
    }

    TovuPageTitle { text: page.model.title }

    TovuPageHint { text: page.model.subtitle }

    Column {
        width: parent ? parent.width : 0
        spacing: TovuPageMetrics.multiRatingRowsSpacing

        Repeater {
            model: page.model.optionIds

            Column {
                id: block
                required property int index
                required property string modelData

                width: parent ? parent.width : 0
                spacing: TovuPageMetrics.multiRatingRowSpacing

                Text {
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                    width: parent ? parent.width : 0
                    wrapMode: Text.Wrap
                    textFormat: Text.PlainText
                    text: page.model.optionTexts[block.index]
                    color: TovuStyle.textColor
                    font: TovuStyle.font(TovuPageMetrics.multiRatingRowLabelFontSize, Font.Normal)
                }

                TovuRatingRow {
                    width: parent ? parent.width : 0
                    height: page.stripHeight
                    model: page.model
                    row: block.index
                    rowId: block.modelData
                    sharedCount: page.model.sharesWidth ? page.model.columnCount : 0
                    columnWidths: page.naturalWidths
                    spacing: TovuPageMetrics.multiRatingColumnSpacing
                    // Centred above the labels' room, as the widget row centres its buttons.
                    cellTop: Math.floor((page.stripHeight - (page.labelled ? page.captionHeight : 0) - page.cellHeight) / 2)
                    cellHeight: page.cellHeight
                    mirrored: LayoutMirroring.enabled
                    outlineColor: TovuStyle.gray3
                    captionFont: page.captionFont
                    captionColor: TovuStyle.gray
                    captionSpacing: TovuPageMetrics.columnLabelSpacing
                    Accessible.role: Accessible.Row
                }

                Rectangle {
                    width: parent ? parent.width : 0
                    height: TovuPageMetrics.multiRatingSeparatorHeight
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
