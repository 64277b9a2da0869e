import QtQuick
import TovuKit

// A 0 to 10 scale: eleven score buttons sharing the width in whole points, the
// first ones a point wider where it does not divide (as the widget row shares it).
Row {
    id: row

    // The look of a score's button: `styleOf(score)`, read again when `selection` changes.
    property var styleOf: function (score) { return ({}) }
    property var selection
    property real buttonHeight: TovuPageMetrics.scoreHeight
    property real buttonRadius: TovuPageMetrics.scoreCornerRadius
    property real fontSize: TovuPageMetrics.scoreFontSize
    // What a screen reader says the scale is about (a multi-NPS row's text).
    property string description
    signal tapped(int score, Item button)

    readonly property int available: Math.max(0, Math.floor(width - 10 * spacing))
    readonly property int buttonWidth: Math.floor(available / 11)
    readonly property int leftover: available % 11

    width: parent ? parent.width : 0
    spacing: TovuPageMetrics.scoreSpacing

    Repeater {
        model: 11

        TovuScoreButton {
            id: button
            required property int index

            score: index
            width: row.buttonWidth + (index < row.leftover ? 1 : 0)
            height: row.buttonHeight
            radius: row.buttonRadius
            fontSize: row.fontSize
            look: { row.selection; return row.styleOf(index) }
            Accessible.description: row.description
            onTapped: row.tapped(index, button)
        }
    }
}
