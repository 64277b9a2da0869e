import QtQuick
import TovuKit

// A single-choice question: radio rows, one chosen at a time, reported by the action.
TovuQuestionPage {
    id: page

    spacing: TovuPageMetrics.singleChoiceSpacing

    TovuPageTitle { text: page.model.title }

    Column {
        width: parent ? parent.width : 0
        spacing: TovuPageMetrics.optionSpacing

        Repeater {
            model: page.model.optionTexts

            TovuOptionRow {
                required property int index
                required property string modelData

                text: modelData
                chosen: page.model.selectedIndex === index
                accent: page.accent
                onTapped: {
                    page.model.selectOption(index)
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
