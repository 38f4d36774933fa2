pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Quillmere.controls
import Quillmere.theme

// One of a few choices, side by side in segments of one width. One stop for Tab; the arrow keys
// choose. It never changes by itself: `activated` asks the host for the choice, and `currentIndex`
// is what then holds. The host sets Accessible.name.
T.GroupBox {
    id: root

    required property list<string> titles
    property int currentIndex: 0

    signal activated(index: int)

    function choose(index: int): void {
        if (index < 0 || index >= segments.count)
            return;
        segments.itemAt(index).forceActiveFocus(Qt.TabFocusReason);
        root.activated(index);
    }

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Theme.compactControlHeight
    padding: 2
    font: Theme.subheadlineMedium
    opacity: enabled ? 1 : Theme.disabledOpacity

    background: Rectangle {
        radius: Theme.controlRadius
        color: Theme.track
        border.width: Theme.highContrast ? Theme.hairlineWidth : 0
        border.color: Theme.controlBorder
    }

    contentItem: Row {
        Repeater {
            id: segments

            model: root.titles

            SegmentButton {
                required property int index
                required property string modelData

                width: Math.max(root.availableWidth / segments.count, implicitWidth)
                height: root.availableHeight
                text: modelData
                font: root.font
                checked: index === root.currentIndex
                onClicked: root.choose(index)
                Keys.onLeftPressed: root.choose(index - 1)
                Keys.onRightPressed: root.choose(index + 1)
            }
        }
    }
}
