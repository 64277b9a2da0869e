import QtQuick
import TovuKit

// A question type this front end does not draw yet: its title and the action.
TovuQuestionPage {
    id: page

    spacing: TovuPageMetrics.singleChoiceSpacing

    TovuPageTitle { text: page.model.title }

    TovuPageFooter {
        model: page.model
        accent: page.accent
        spacing: page.spacing
    }
}
