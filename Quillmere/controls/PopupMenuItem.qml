import QtQuick
import QtQuick.Templates as T
import Quillmere.controls
import Quillmere.theme

// A line of a PopupMenu; the current choice has a check mark.
T.MenuItem {
    id: root

    property string symbol: ""
    property bool destructive: false

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.max(32, implicitContentHeight + topPadding + bottomPadding)
    topPadding: 5
    bottomPadding: 5
    leftPadding: 10
    rightPadding: 14
    font: Theme.body
    opacity: enabled ? 1 : Theme.disabledOpacity
    Accessible.onPressAction: {
        if (root.enabled)
            root.clicked();
    }

    background: Rectangle {
        radius: Theme.popoverRadius - 5
        color: root.highlighted ? Theme.tinted(Theme.accent, Theme.dark ? 0.28 : 0.18) : "transparent"
        border.width: root.highlighted && Theme.highContrast ? 2 : 0
        border.color: Theme.focus
    }

    contentItem: MenuLine {
        text: root.text
        symbol: root.symbol
        checked: root.checked
        color: root.destructive ? Theme.alertText : Theme.primary
    }
}
