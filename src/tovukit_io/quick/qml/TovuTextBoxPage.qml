import QtQuick
import TovuKit

// A text question: one field, or one labelled field per entry; every field is
// reported, as typed, by "Submit".
TovuQuestionPage {
    id: page

    spacing: TovuPageMetrics.textBoxSpacing

    TovuPageTitle { text: page.model.title }

    Column {
        width: parent ? parent.width : 0
        spacing: TovuPageMetrics.inputsSpacing

        Repeater {
            model: page.model.fieldCount

            Column {
                id: group
                required property int index

                width: parent ? parent.width : 0
                spacing: TovuPageMetrics.fieldGroupSpacing

                Text {
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                    width: parent ? parent.width : 0
                    visible: page.model.isMultiple
                    wrapMode: Text.Wrap
                    textFormat: Text.PlainText
                    text: page.model.fieldLabels[group.index]
                    color: page.accent
                    font: TovuStyle.font(TovuPageMetrics.fieldLabelFontSize, Font.DemiBold)
                }

                TovuTextBoxField {
                    placeholder: page.model.fieldPlaceholders[group.index]
                    accessibleName: page.model.isMultiple ? page.model.fieldLabels[group.index] : page.model.title
                    email: page.model.isEmailField(group.index)
                    invalid: page.model.invalidFieldIndex === group.index
                    accent: page.accent
                    onTextChanged: page.model.setFieldText(group.index, text)
                    onFocused: page.model.fieldFocused(group.index)
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
