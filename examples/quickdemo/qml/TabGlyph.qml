import QtQuick

// A line icon of the host app: a tab bar glyph ("home", "search", "basket",
// "account") or a row's "chevron", stroked in `color`.
Canvas {
    id: glyph

    property string name
    property color color
    property real lineWidth: 2

    implicitWidth: 28
    implicitHeight: 28
    onColorChanged: requestPaint()
    onNameChanged: requestPaint()

    onPaint: {
        const c = getContext("2d")
        c.reset()
        c.strokeStyle = glyph.color
        c.lineWidth = glyph.lineWidth
        c.lineCap = "round"
        c.lineJoin = "round"
        const x = width / 2
        const y = height / 2
        c.beginPath()
        if (name === "home") {
            c.moveTo(x - 10, y - 1); c.lineTo(x, y - 10); c.lineTo(x + 10, y - 1)
            c.moveTo(x - 7, y - 3); c.lineTo(x - 7, y + 10); c.lineTo(x + 7, y + 10); c.lineTo(x + 7, y - 3)
        } else if (name === "search") {
            c.ellipse(x - 9, y - 9, 14, 14)
            c.moveTo(x + 3, y + 3); c.lineTo(x + 9, y + 9)
        } else if (name === "basket") {
            c.moveTo(x - 11, y - 2); c.lineTo(x + 11, y - 2); c.lineTo(x + 7, y + 10); c.lineTo(x - 7, y + 10)
            c.closePath()
            c.moveTo(x - 6, y - 2); c.lineTo(x - 2, y - 10)
            c.moveTo(x + 6, y - 2); c.lineTo(x + 2, y - 10)
        } else if (name === "account") {
            c.ellipse(x - 5, y - 10, 10, 10)
            c.moveTo(x - 9, y + 11); c.bezierCurveTo(x - 9, y + 1, x + 9, y + 1, x + 9, y + 11)
        } else if (name === "chevron") {
            c.moveTo(x - 2.5, y - 7); c.lineTo(x + 2.5, y); c.lineTo(x - 2.5, y + 7)
        }
        c.stroke()
    }
}
