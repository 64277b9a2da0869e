import QtQuick
import TovuKit

// A multiple-choice question: checkbox rows that tick independently, under a hint.
TovuQuestionPage {
    id: page

    spacing: TovuPageMetrics.multipleChoiceSpacing

    TovuPageTitle { text: page.model.title }

    TovuPageHint { text: page.model.hint }

    Column {
        width: parent ? parent.width : 0
        spacing: TovuPageMetrics.optionSpacing

        Repeater {
            model: page.model.optionIds

            TovuOptionRow {
                required property int index
                required property string modelData

                objectName: modelData
                text: page.model.optionTexts[index]
                checkbox: true
                chosen: page.model.selectedIds.indexOf(modelData) >= 0
                accent: page.accent
                onTapped: {
                    page.model.toggleOption(modelData)
                    // Only a tick bounces; an untick just lets go.
                    if (page.model.isSelected(modelData))
                        bounce()
                }
            }
        }
    }

    TovuPageFooter {
        model: page.model
        accent: page.accent
        spacing: page.spacing
    }
}
