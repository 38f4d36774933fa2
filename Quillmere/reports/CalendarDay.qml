import QtQuick
import Quillmere.controls
import Quillmere.theme

// A day of the grid, or an empty cell of it. Only a day with a change can be opened.
Item {
    id: root

    required property int row
    required property int number
    required property bool changed
    required property bool takesTime
    required property bool today
    required property string spokenDate
    required property string spokenAmount
    required property string amountText

    readonly property color tint: root.takesTime ? Theme.alert : Theme.accent
    readonly property color ink: root.takesTime ? Theme.alertText : Theme.accentText
    readonly property real strength: (root.takesTime ? 0.12 : 0.13)
                                     + (tap.pressed ? 0.12 : hover.hovered ? 0.06 : 0)

    signal requested()

    objectName: root.changed ? "calendar.changedDay" : ""
    implicitHeight: Math.round(52 * Math.max(1, Theme.textScale))
    // Hidden, but with its place in the grid.
    opacity: root.number > 0 ? 1 : 0
    Accessible.ignored: root.number === 0
    Accessible.role: root.changed ? Accessible.Button : Accessible.StaticText
    Accessible.name: root.spokenDate
    Accessible.description: root.changed
        ? qsTr("%1. Shows this day's time-bank changes").arg(root.spokenAmount) : root.spokenAmount
    Accessible.focusable: root.number > 0
    Accessible.onPressAction: {
        if (root.changed)
            root.requested();
    }

    Rectangle {
        id: ground

        anchors.fill: parent
        radius: 11
        color: root.changed ? Theme.tinted(root.tint, root.strength)
                            : Theme.tinted(Theme.primary, 0.05)
        border.width: Theme.highContrast ? Theme.hairlineWidth : 0
        border.color: Theme.controlBorder

        Behavior on color { FadeMotion {} }

        FocusRing {
            shown: root.activeFocus
            radius: ground.radius
        }
    }

    Rectangle {
        anchors.centerIn: day
        width: Math.round(22 * Theme.textScale)
        height: width
        radius: width / 2
        visible: root.today
        color: Theme.prominent
    }

    PlainText {
        id: day

        x: 9
        y: 7
        text: root.number
        font: Theme.captionMedium
        color: root.today ? Theme.prominentText : Theme.primary
        Accessible.ignored: true
    }

    // The direction, for whom the colours are one.
    Symbol {
        anchors.right: parent.right
        anchors.rightMargin: 9
        anchors.verticalCenter: day.verticalCenter
        visible: root.changed
        name: root.takesTime ? "minus" : "plus"
        size: 11
        color: root.ink
    }

    MonospacedDigits {
        anchors.right: parent.right
        anchors.rightMargin: 9
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 7
        // A long amount shrinks, to 0.7 of its size at most.
        scale: Math.max(0.7, Math.min(1, (root.width - 18) / implicitWidth))
        transformOrigin: Item.BottomRight
        visible: root.changed
        text: root.amountText
        font: Theme.caption2
        color: root.ink
        Accessible.ignored: true
    }

    HoverHandler {
        id: hover

        enabled: root.changed
        cursorShape: Qt.PointingHandCursor
    }

    TapHandler {
        id: tap

        enabled: root.changed
        onTapped: {
            root.forceActiveFocus(Qt.MouseFocusReason);
            root.requested();
        }
    }
}
