import QtQuick
import TovuKit

// A dropdown question: a selector that opens an in-place list; choosing closes
// it, shows the choice and reveals the action.
TovuQuestionPage {
    id: page

    readonly property bool highlighted: page.model.isExpanded || page.model.hasSelection

    spacing: TovuPageMetrics.dropdownSpacing

    TovuPageTitle { text: page.model.title }

    Rectangle {
        id: selector
        width: parent ? parent.width : 0
        height: TovuPageMetrics.selectorHeight
        radius: TovuPageMetrics.selectorCornerRadius
        border.width: TovuPageMetrics.selectorBorderWidth
        border.color: page.highlighted ? page.accent : TovuStyle.gray4
        color: TovuStyle.systemBackground
        activeFocusOnTab: true

        Accessible.role: Accessible.Button
        Accessible.name: page.model.selectorTitle
        Accessible.onPressAction: page.model.toggleExpanded()
        Keys.onSpacePressed: page.model.toggleExpanded()
        Keys.onReturnPressed: page.model.toggleExpanded()
        Keys.onEnterPressed: page.model.toggleExpanded()

        TovuFocusRing { cornerRadius: selector.radius }

        Text {
            anchors.left: parent.left
            anchors.leftMargin: TovuPageMetrics.selectorInsetLeading
            anchors.right: parent.right
            anchors.rightMargin: TovuPageMetrics.selectorInsetTrailing
            anchors.verticalCenter: parent.verticalCenter
            horizontalAlignment: Text.AlignLeft
            elide: Text.ElideRight
            textFormat: Text.PlainText
            text: page.model.selectorTitle
            color: page.model.hasSelection ? TovuStyle.label : TovuStyle.secondaryLabel
            font: TovuStyle.font(TovuPageMetrics.selectorFontSize, Font.Normal)
            Accessible.ignored: true
        }

        TovuSymbolIcon {
            anchors.right: parent.right
            anchors.rightMargin: TovuPageMetrics.chevronTrailing
            anchors.verticalCenter: parent.verticalCenter
            width: TovuPageMetrics.chevronSize
            height: width
            name: "chevron.down"
            weight: Font.DemiBold
            color: TovuStyle.gray2
            rotation: page.model.isExpanded ? 180 : 0
            Behavior on rotation {
                NumberAnimation { duration: TovuStyle.durationMs(TovuPageMetrics.chevronSeconds) }
            }
        }

        MouseArea {
            anchors.fill: parent
            onPressed: selector.forceActiveFocus(Qt.MouseFocusReason)
            onClicked: page.model.toggleExpanded()
        }
    }

    Rectangle {
        id: list
        width: parent ? parent.width : 0
        height: options.height + 2 * TovuPageMetrics.listInset
        visible: page.model.isExpanded
        radius: TovuPageMetrics.listCornerRadius
        border.width: TovuPageMetrics.listBorderWidth
        border.color: TovuStyle.gray4
        color: TovuStyle.systemBackground

        TovuBoxShadow {
            z: -1
            x: -spread
            y: offsetY - spread
            width: list.width + 2 * spread
            height: list.height + 2 * spread
            cornerRadius: list.radius
            offsetY: TovuPageMetrics.listShadowOffsetY
            blurRadius: TovuPageMetrics.listShadowRadius
            color: Qt.rgba(0, 0, 0, TovuPageMetrics.listShadowOpacity)
        }

        Column {
            id: options
            x: TovuPageMetrics.listInset
            y: TovuPageMetrics.listInset
            width: parent.width - 2 * TovuPageMetrics.listInset

            Repeater {
                model: page.model.optionTexts

                Column {
                    id: entry
                    required property int index
                    required property string modelData
                    readonly property bool chosen: page.model.selectedIndex === index

                    width: options.width

                    Rectangle {
                        visible: entry.index > 0
                        width: parent ? parent.width : 0
                        height: TovuPageMetrics.separatorHeight
                        color: TovuStyle.gray5
                    }

                    Rectangle {
                        id: choice
                        width: parent ? parent.width : 0
                        height: TovuPageMetrics.listRowHeight
                        color: entry.chosen ? TovuStyle.withAlpha(page.accent, TovuPageMetrics.chosenFillAlpha)
                                            : "transparent"
                        activeFocusOnTab: true

                        Accessible.role: Accessible.Button
                        Accessible.name: entry.modelData
                        Accessible.onPressAction: page.model.chooseOption(entry.index)
                        Keys.onSpacePressed: page.model.chooseOption(entry.index)
                        Keys.onReturnPressed: page.model.chooseOption(entry.index)
                        Keys.onEnterPressed: page.model.chooseOption(entry.index)
                        // Arrows move along the list and never out of it.
                        Keys.onUpPressed: choice.moveFocus(false)
                        Keys.onDownPressed: choice.moveFocus(true)
                        readonly property bool isListEntry: true
                        function moveFocus(forward) {
                            const next = choice.nextItemInFocusChain(forward)
                            if (next && next.isListEntry)
                                next.forceActiveFocus(forward ? Qt.TabFocusReason : Qt.BacktabFocusReason)
                        }

                        TovuFocusRing {}

                        Text {
                            anchors.fill: parent
                            anchors.leftMargin: TovuPageMetrics.listRowInset
                            anchors.rightMargin: TovuPageMetrics.listRowInset
                            horizontalAlignment: Text.AlignLeft
                            verticalAlignment: Text.AlignVCenter
                            elide: Text.ElideRight
                            textFormat: Text.PlainText
                            text: entry.modelData
                            color: entry.chosen ? page.accent : TovuStyle.label
                            font: TovuStyle.font(TovuPageMetrics.listRowFontSize, Font.Normal)
                            Accessible.ignored: true
                        }

                        MouseArea {
                            anchors.fill: parent
                            onPressed: choice.forceActiveFocus(Qt.MouseFocusReason)
                            onClicked: page.model.chooseOption(entry.index)
                        }
                    }
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
