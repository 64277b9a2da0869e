import QtQuick
import TovuKit

// An NPS question: a 0 to 10 scale in coloured bands, its end labels, and the
// follow-up the chosen score asks for.
TovuQuestionPage {
    id: page

    spacing: TovuPageMetrics.npsSpacing

    TovuPageTitle { text: page.model.title }

    TovuPageHint { text: page.model.subtitle }

    TovuScoreRow {
        width: parent ? parent.width : 0
        height: TovuPageMetrics.scoreHeight
        model: page.model
        spacing: TovuPageMetrics.scoreSpacing
        cellHeight: TovuPageMetrics.scoreHeight
        cornerRadius: TovuPageMetrics.scoreCornerRadius
        fontSize: TovuPageMetrics.scoreFontSize
        titleColor: TovuStyle.label
        mirrored: LayoutMirroring.enabled
        Accessible.role: Accessible.Row
    }

    TovuEndLabels {
        low: page.model.lowLabel
        high: page.model.highLabel
        lowColor: page.model.lowLabelColor
        highColor: page.model.highLabelColor
    }

    TovuFollowUpCard {
        visible: page.model.followUpShown
        question: page.model.followUpQuestion
        asksForText: page.model.followUpKind === TovuNPSQuestionViewModel.FollowUpKind.text
        optionIds: page.model.followUpOptionIds
        optionTexts: page.model.followUpOptionTexts
        selectedOptionId: page.model.selectedFollowUpOptionId
        text: page.model.followUpText
        accent: page.accent
        onTextEdited: function (edited) { page.model.followUpText = edited }
        onOptionTapped: function (optionId) { page.model.selectFollowUpOption(optionId) }
    }

    TovuPageFooter {
        model: page.model
        accent: page.accent
        spacing: page.spacing
    }
}
