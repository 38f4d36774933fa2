pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Quillmere.controls
import Quillmere.theme

// One choice of a list. The model has the roles "value", "title" and "symbol"; `currentValue` is the
// choice and `activated` says that the user made one. The host sets Accessible.name.
T.ComboBox {
    id: root

    readonly property string currentSymbol: count > 0 && currentIndex >= 0
        ? rows.itemAt(currentIndex)?.symbol ?? "" : ""

    function widestTitle(): real {
        let widest = 0;
        for (let row = 0; row < rows.count; ++row)
            widest = Math.max(widest, metrics.advanceWidth(rows.itemAt(row).title));
        return Math.ceil(widest);
    }

    implicitWidth: Math.max(implicitBackgroundWidth, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(implicitBackgroundHeight, implicitContentHeight + topPadding + bottomPadding)
    leftPadding: 13
    rightPadding: 34
    topPadding: 6
    bottomPadding: 6
    textRole: "title"
    valueRole: "value"
    font: Theme.body
    hoverEnabled: true
    opacity: enabled ? 1 : Theme.disabledOpacity
    Accessible.role: Accessible.ComboBox
    Accessible.description: root.displayText
    Accessible.onPressAction: {
        root.forceActiveFocus(Qt.OtherFocusReason);
        root.popup.open();
    }

    Keys.onReturnPressed: root.popup.open()
    Keys.onEnterPressed: root.popup.open()

    // Keeps the symbols and titles of the model's rows at hand.
    Repeater {
        id: rows

        model: root.model

        Item {
            required property string symbol
            required property string title

            visible: false
        }
    }

    FontMetrics {
        id: metrics

        font: root.font
    }

    background: Rectangle {
        implicitWidth: 160
        implicitHeight: Theme.controlHeight
        radius: Theme.controlRadius
        color: root.pressed ? Theme.controlPressed : root.hovered ? Theme.controlHover : Theme.control
        border.width: Theme.hairlineWidth
        border.color: Theme.controlBorder

        Behavior on color { FadeMotion {} }
    }

    contentItem: Row {
        spacing: Theme.spaceS

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            visible: name !== ""
            name: root.currentSymbol
            size: 15
            color: Theme.primary
        }

        Text {
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, root.availableWidth - 15 - Theme.spaceS)
            text: root.displayText
            textFormat: Text.PlainText
            font: root.font
            color: Theme.primary
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }

    indicator: Symbol {
        x: root.width - width - 13
        y: (root.height - height) / 2
        name: "chevron.down"
        size: 12
        color: Theme.secondary
    }

    delegate: T.ItemDelegate {
        id: choice

        required property int index
        required property string title
        required property string symbol

        width: ListView.view.width
        implicitHeight: 32
        leftPadding: 10
        rightPadding: 10
        text: choice.title
        highlighted: root.highlightedIndex === choice.index
        hoverEnabled: true
        Accessible.selectable: true
        Accessible.selected: choice.highlighted
        Accessible.onPressAction: choice.clicked()
        onYChanged: order.schedule()

        background: Rectangle {
            radius: Theme.popoverRadius - 5
            color: choice.highlighted ? Theme.tinted(Theme.accent, Theme.dark ? 0.28 : 0.18) : "transparent"
            border.width: choice.highlighted && Theme.highContrast ? 2 : 0
            border.color: Theme.focus
        }

        contentItem: MenuLine {
            text: choice.title
            symbol: choice.symbol
            checked: root.currentIndex === choice.index
        }
    }

    popup: T.Popup {
        id: choices

        // Check mark and symbol beside the widest title.
        property real lineWidth: 0

        y: root.height + 4
        width: Math.max(root.width, 190, Math.min(choices.lineWidth, 420, root.Window.width - 2 * margins))
        height: Math.min(contentItem.implicitHeight + topPadding + bottomPadding, 330)
        padding: 5
        margins: 6
        onAboutToShow: choices.lineWidth = root.widestTitle() + 90

        enter: Transition {
            NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.fadeDuration }
        }
        exit: Transition {
            NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Theme.fadeDuration }
        }

        background: PopoverSurface {}

        contentItem: ListView {
            id: list

            // With what is above it where there is room for both.
            function showChoice(): void {
                list.positionViewAtBeginning();
                list.positionViewAtIndex(list.currentIndex, ListView.Contain);
            }

            implicitHeight: contentHeight
            model: root.popup.visible ? root.delegateModel : null
            currentIndex: root.highlightedIndex
            highlightMoveDuration: 0
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            T.ScrollBar.vertical: ThinScrollBar {}
            onModelChanged: Qt.callLater(showChoice) // qmllint disable

            ReadingOrder {
                id: order

                container: list.contentItem
            }
        }
    }

    FocusRing {
        shown: root.visualFocus
    }
}
