import QtQuick
import TovuKit

// The grey line under a title (a subtitle or a hint), hidden when empty.
Text {
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    width: parent ? parent.width : 0
    visible: text.length > 0
    wrapMode: Text.Wrap
    textFormat: Text.PlainText
    color: TovuStyle.gray
    font: TovuStyle.font(TovuPageMetrics.hintFontSize, Font.Normal)
}
