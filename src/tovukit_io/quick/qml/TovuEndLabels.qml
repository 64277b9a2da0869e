import QtQuick
import TovuKit

// The two ends of a 0 to 10 scale: the low label at the leading end, the high one
// at the trailing end, in their fixed colours.
Row {
    id: labels

    property string low
    property string high
    property color lowColor
    property color highColor
    property real fontSize: TovuPageMetrics.endLabelFontSize
    property int weight: Font.Normal

    width: parent ? parent.width : 0
    spacing: TovuPageMetrics.endLabelSpacing

    Text {
        Accessible.role: Accessible.StaticText
        Accessible.name: text
        width: (labels.width - labels.spacing) / 2
        elide: Text.ElideRight
        textFormat: Text.PlainText
        text: labels.low
        color: labels.lowColor
        font: TovuStyle.font(labels.fontSize, labels.weight)
    }

    Text {
        Accessible.role: Accessible.StaticText
        Accessible.name: text
        width: (labels.width - labels.spacing) / 2
        horizontalAlignment: Text.AlignRight
        elide: Text.ElideRight
        textFormat: Text.PlainText
        text: labels.high
        color: labels.highColor
        font: TovuStyle.font(labels.fontSize, labels.weight)
    }
}
