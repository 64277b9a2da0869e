import QtQuick
import TovuQuickDemo

// The host app's screen, where surveys appear: the home screen of "Fresh
// Basket", a grocery-delivery app, at phone size. The window hands this item to
// the manager as the host the survey sheet covers. Its words come from
// `demo.storefront`, its colours from `demo.colors` (light or dark); its status
// bar says "Offline" while the demo is offline.
Rectangle {
    id: screen

    required property TovuQuickDemo demo
    readonly property var c: demo.colors
    readonly property var s: demo.storefront
    readonly property string emojiFamily: "Noto Color Emoji"

    objectName: "hostScreen"
    width: 390
    height: 844
    color: c.background

    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Fresh Basket home screen")

    component Label: Text {
        property int size: 15
        property int weight: Font.Normal
        textFormat: Text.PlainText
        color: screen.c.text
        verticalAlignment: Text.AlignVCenter
        font.pixelSize: size
        font.weight: weight
    }

    component Emoji: Text {
        property int size: 20
        textFormat: Text.PlainText
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        font.family: screen.emojiFamily
        font.pixelSize: size
    }

    // Status bar: the time, and signal and battery on the right.
    Label {
        x: 28; y: 12; height: 22
        text: screen.s.clock
        size: 15; weight: Font.DemiBold
    }

    Item {
        id: status
        readonly property real rightEdge: screen.width - 24
        anchors.fill: parent

        Repeater {
            model: 4
            Rectangle {
                required property int index
                x: status.rightEdge - 58 + index * 6
                y: 27 - 3 * (index + 1)
                width: 4
                height: 3 * (index + 1)
                color: screen.demo.online ? screen.c.text : screen.c.separator
            }
        }

        Rectangle {
            x: status.rightEdge - 26; y: 16; width: 24; height: 12
            radius: 3
            color: "transparent"
            border.width: 1.2
            border.color: screen.c.text

            Rectangle { x: 2; y: 2; width: 16; height: 8; color: screen.c.text }
        }
        Rectangle { x: status.rightEdge - 1.5; y: 20; width: 2; height: 4; color: screen.c.text }

        Rectangle {
            visible: !screen.demo.online
            x: status.rightEdge - 66 - width; y: 13
            width: offline.implicitWidth + 18; height: 18
            radius: 9
            color: screen.c.alert

            Label {
                id: offline
                anchors.centerIn: parent
                text: qsTr("Offline")
                color: "white"
                size: 12; weight: Font.DemiBold
            }
        }
    }

    // The app's name and the user.
    Rectangle {
        x: 20; y: 56; width: 38; height: 38
        radius: 19
        color: screen.c.brand
        Emoji { anchors.fill: parent; text: screen.s.logo; size: 20 }
    }
    Label {
        x: 68; y: 56; height: 38
        text: screen.s.appName
        size: 20; weight: Font.Bold
    }
    Rectangle {
        x: screen.width - 58; y: 56; width: 38; height: 38
        radius: 19
        color: screen.c.card
        Label {
            anchors.centerIn: parent
            text: screen.s.avatar
            color: screen.c.brand
            size: 16; weight: Font.Bold
        }
    }

    Label {
        x: 20; y: 110; width: screen.width - 40; height: 36
        text: screen.s.greeting
        size: 26; weight: Font.Bold
    }
    Label {
        x: 20; y: 146; width: screen.width - 40; height: 22
        text: screen.s.status
        color: screen.c.secondary
    }

    // The order on its way.
    Rectangle {
        id: card
        x: 20; y: 182; width: screen.width - 40; height: 148
        radius: 20
        color: screen.c.brand

        Label {
            x: 20; y: 18; height: 18
            text: screen.s.order
            color: screen.c.onBrand
            size: 13; weight: Font.DemiBold
        }
        // The arrival time fits beside the van: the font gives way on narrow screens.
        Label {
            x: 20; y: 40; width: card.width - 96; height: 30
            text: screen.s.arrival
            color: screen.c.onBrand
            size: 22; weight: Font.Bold
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 14
        }
        Emoji {
            x: card.width - 70; y: 14; width: 54; height: 54
            text: screen.s.vehicle
            size: 34
        }

        Item {
            id: progress
            readonly property real start: 30
            readonly property real step: (card.width - 60) / 2
            readonly property color faint: Qt.rgba(screen.c.onBrand.r, screen.c.onBrand.g, screen.c.onBrand.b, 0.35)
            y: 98

            Rectangle {
                x: progress.start - 1.5; y: -1.5; width: progress.step * screen.s.currentStep + 3; height: 3
                radius: 1.5
                color: screen.c.onBrand
            }
            Rectangle {
                x: progress.start + progress.step * screen.s.currentStep - 1.5; y: -1.5
                width: progress.step * (screen.s.steps.length - 1 - screen.s.currentStep) + 3; height: 3
                radius: 1.5
                color: progress.faint
            }

            Repeater {
                model: screen.s.steps

                Item {
                    id: step
                    required property int index
                    required property string modelData
                    readonly property bool reached: index <= screen.s.currentStep
                    readonly property real dot: index === screen.s.currentStep ? 7 : 5
                    readonly property bool first: index === 0
                    readonly property bool last: index === screen.s.steps.length - 1
                    x: progress.start + index * progress.step

                    Rectangle {
                        x: -step.dot; y: -step.dot; width: 2 * step.dot; height: width
                        radius: step.dot
                        color: step.reached ? screen.c.onBrand : progress.faint
                    }
                    Label {
                        x: step.first ? -6 : step.last ? -94 : -50
                        y: 12; width: 100; height: 18
                        horizontalAlignment: step.first ? Text.AlignLeft : step.last ? Text.AlignRight : Text.AlignHCenter
                        text: step.modelData
                        color: step.reached ? screen.c.onBrand : progress.faint
                        size: 12; weight: Font.DemiBold
                    }
                }
            }
        }
    }

    // Buy again.
    Label {
        x: 20; y: 350; height: 26
        text: screen.s.buyAgainTitle
        size: 18; weight: Font.Bold
    }
    Label {
        x: screen.width - 120; y: 350; width: 100; height: 26
        horizontalAlignment: Text.AlignRight
        text: screen.s.seeAll
        color: screen.c.brand
        size: 14; weight: Font.DemiBold
    }
    Row {
        x: 20; y: 386
        spacing: 12

        Repeater {
            model: screen.s.buyAgain

            Rectangle {
                id: tile
                required property var modelData
                width: (screen.width - 40 - 3 * 12) / 4
                height: 110
                radius: 16
                color: screen.c.card

                Emoji { y: 10; width: tile.width; height: 44; text: tile.modelData.emoji; size: 32 }
                Label {
                    x: 4; y: 58; width: tile.width - 8; height: 18
                    horizontalAlignment: Text.AlignHCenter
                    elide: Text.ElideRight
                    text: tile.modelData.name
                    size: 12
                }
                Label {
                    y: 80; width: tile.width; height: 18
                    horizontalAlignment: Text.AlignHCenter
                    text: tile.modelData.price
                    size: 13; weight: Font.Bold
                }
            }
        }
    }

    // Recent orders, as many as fit above the tab bar.
    Label {
        x: 20; y: 518; height: 26
        text: screen.s.recentOrdersTitle
        size: 18; weight: Font.Bold
    }
    Column {
        x: 0; y: 548
        width: screen.width

        Repeater {
            model: screen.s.recentOrders

            Item {
                id: order
                required property int index
                required property var modelData
                width: screen.width
                height: 64
                visible: 548 + index * 64 + 60 <= screen.height - 83

                Rectangle {
                    x: 20; y: 8; width: 44; height: 44
                    radius: 22
                    color: screen.c.card
                    Emoji { anchors.fill: parent; text: screen.s.pastOrderIcon; size: 22 }
                }
                Label {
                    x: 76; y: 10; width: screen.width - 130; height: 20
                    elide: Text.ElideRight
                    text: order.modelData.title
                    weight: Font.DemiBold
                }
                Label {
                    x: 76; y: 32; width: screen.width - 130; height: 18
                    elide: Text.ElideRight
                    text: order.modelData.detail
                    color: screen.c.secondary
                    size: 13
                }
                TabGlyph {
                    x: screen.width - 30 - width / 2 - 2.5; y: 30 - height / 2
                    name: "chevron"
                    color: screen.c.secondary
                }
                Rectangle {
                    visible: order.index < screen.s.recentOrders.length - 1
                    x: 76; y: 62; width: screen.width - 96; height: 1
                    color: screen.c.separator
                }
            }
        }
    }

    // The tab bar, Home open, and the home indicator.
    Rectangle {
        id: tabBar
        y: screen.height - 83; width: screen.width; height: 83
        color: screen.c.background

        Rectangle { width: parent.width; height: 1; color: screen.c.separator }

        Row {
            Repeater {
                model: screen.s.tabs

                Item {
                    id: tab
                    required property int index
                    required property string modelData
                    readonly property color tint: index === 0 ? screen.c.brand : screen.c.secondary
                    width: screen.width / 4
                    height: 60

                    TabGlyph {
                        x: (tab.width - width) / 2; y: 24 - height / 2
                        name: ["home", "search", "basket", "account"][tab.index]
                        color: tab.tint
                    }
                    Label {
                        y: 38; width: tab.width; height: 16
                        horizontalAlignment: Text.AlignHCenter
                        text: tab.modelData
                        color: tab.tint
                        size: 11; weight: tab.index === 0 ? Font.DemiBold : Font.Normal
                    }
                }
            }
        }

        Rectangle {
            x: (screen.width - width) / 2; y: 83 - 13; width: 134; height: 5
            radius: 2.5
            color: screen.c.text
        }
    }
}
