import QtQuick
import TovuKit

// A question's title: 18 bold, any number of lines, never rich text.
Text {
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    width: parent ? parent.width : 0
    wrapMode: Text.Wrap
    textFormat: Text.PlainText
    color: TovuStyle.textColor
    font: TovuStyle.font(TovuPageMetrics.titleFontSize, Font.Bold)
}
