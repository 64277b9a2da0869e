import QtQuick
import TovuKit

// One button of a rating: a drawn symbol, a face or a number tile, as its model
// says for `rating`; a checkable control a screen reader names "3 of 5 stars".
Rectangle {
    id: button

    required property TovuRatingQuestionViewModel model
    required property int rating
    property color accent: TovuStyle.primaryColor
    readonly property string variant: button.model.variantName
    // Read again whenever the rating changes.
    readonly property bool filled: { button.model.rating; return button.model.isSelected(button.rating) }
    readonly property bool chosen: button.model.rating === button.rating
    signal tapped()

    function bounce() { bump.restart() }

    height: button.variant === "EMOJI" ? TovuPageMetrics.faceButtonHeight
          : button.variant === "NUMERIC" ? TovuPageMetrics.tileHeight : TovuPageMetrics.symbolButtonHeight
    radius: button.variant === "NUMERIC" ? TovuPageMetrics.tileCornerRadius : 0
    color: button.variant !== "NUMERIC" ? "transparent" : button.filled ? button.accent : TovuStyle.gray6
    activeFocusOnTab: true

    Accessible.role: Accessible.CheckBox
    Accessible.name: button.model.accessibleName(button.rating)
    Accessible.checkable: true
    Accessible.checked: button.chosen
    Accessible.onPressAction: button.tapped()
    Accessible.onToggleAction: button.tapped()
    Keys.onSpacePressed: button.tapped()
    Keys.onReturnPressed: button.tapped()
    Keys.onEnterPressed: button.tapped()

    TovuFocusRing { cornerRadius: button.radius }

    SequentialAnimation {
        id: bump
        NumberAnimation {
            target: button; property: "scale"; to: TovuPageMetrics.ratingTapScale
            duration: TovuStyle.durationMs(TovuPageMetrics.ratingTapSeconds)
        }
        NumberAnimation {
            target: button; property: "scale"; to: 1
            duration: TovuStyle.durationMs(TovuPageMetrics.ratingTapSeconds)
        }
    }

    TovuSymbolIcon {
        anchors.centerIn: parent
        visible: button.variant !== "NUMERIC"
        readonly property bool isFace: button.variant === "EMOJI"
        width: isFace ? parent.width : TovuPageMetrics.ratingSymbolPointSize
        height: isFace ? parent.height : width
        name: { button.model.rating; return isFace ? "" : button.model.symbolName(button.rating) }
        face: isFace ? button.model.buttonTitle(button.rating) : ""
        faceSize: button.filled ? TovuPageMetrics.ratingChosenEmojiSize : TovuPageMetrics.ratingEmojiSize
        opacity: !isFace || button.filled ? 1 : TovuPageMetrics.ratingFadedOpacity
        weight: Font.Medium
        // Outlines follow system gray 3 through light and dark.
        color: isFace ? "black" : button.filled ? button.model.activeColor() : TovuStyle.gray3
    }

    Text {
        anchors.fill: parent
        visible: button.variant === "NUMERIC"
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        textFormat: Text.PlainText
        text: visible ? button.model.buttonTitle(button.rating) : ""
        color: button.filled ? "white" : TovuStyle.label
        font: TovuStyle.font(TovuPageMetrics.tileFontSize, Font.Bold)
        Accessible.ignored: true
    }

    MouseArea {
        anchors.fill: parent
        onPressed: button.forceActiveFocus(Qt.MouseFocusReason)
        onClicked: button.tapped()
    }
}
