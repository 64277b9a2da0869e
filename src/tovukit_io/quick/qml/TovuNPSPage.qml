import QtQuick
import TovuKit

// An NPS question: a 0 to 10 scale in coloured bands, its end labels, and the
// follow-up the chosen score asks for.
TovuQuestionPage {
    id: page

    spacing: TovuPageMetrics.npsSpacing

    TovuPageTitle { text: page.model.title }

    Text {
        Accessible.role: Accessible.StaticText
        Accessible.name: text
        width: parent ? parent.width : 0
        visible: text.length > 0
        wrapMode: Text.Wrap
        textFormat: Text.PlainText
        text: page.model.subtitle
        color: TovuStyle.gray
        font: TovuStyle.font(TovuPageMetrics.hintFontSize, Font.Normal)
    }

    Row {
        id: scoreRow
        // Whole points, the first ones a point wider where the width does not divide,
        // as the widget page's equal-width row shares it out.
        readonly property int available: Math.max(0, Math.floor(width - 10 * spacing))
        readonly property int buttonWidth: Math.floor(available / 11)
        readonly property int leftover: available % 11
        width: parent ? parent.width : 0
        spacing: TovuPageMetrics.scoreSpacing

        Repeater {
            model: 11

            TovuScoreButton {
                required property int index
                score: index
                width: scoreRow.buttonWidth + (index < scoreRow.leftover ? 1 : 0)
                look: { page.model.selectedScore; return page.model.scoreStyle(index) }
                onTapped: {
                    page.model.selectScore(index)
                    if (page.model.selectedScore === index)
                        bounce()
                }
            }
        }
    }

    Row {
        width: parent ? parent.width : 0
        spacing: TovuPageMetrics.endLabelSpacing

        Text {
            Accessible.role: Accessible.StaticText
            Accessible.name: text
            width: (parent.width - parent.spacing) / 2
            elide: Text.ElideRight
            textFormat: Text.PlainText
            text: page.model.lowLabel
            color: page.model.lowLabelColor
            font: TovuStyle.font(TovuPageMetrics.endLabelFontSize, Font.Normal)
        }

        Text {
            Accessible.role: Accessible.StaticText
            Accessible.name: text
            width: (parent.width - parent.spacing) / 2
            horizontalAlignment: Text.AlignRight
            elide: Text.ElideRight
            textFormat: Text.PlainText
            text: page.model.highLabel
            color: page.model.highLabelColor
            font: TovuStyle.font(TovuPageMetrics.endLabelFontSize, Font.Normal)
        }
    }

    TovuFollowUpCard {
        model: page.model
        accent: page.accent
    }

    TovuPageFooter {
        model: page.model
        accent: page.accent
        spacing: page.spacing
    }
}
