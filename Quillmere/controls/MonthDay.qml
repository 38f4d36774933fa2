import QtQuick
import Quillmere.controls
import Quillmere.theme

// A day of the month panel, or an empty cell of it, which is there all the same: a Grid closes the
// gap of an item that is not visible.
Item {
    id: root

    required property int number
    required property string spoken
    required property bool selectable
    required property bool selected
    required property bool today

    signal pressed()

    Accessible.role: Accessible.Button
    Accessible.name: spoken
    Accessible.ignored: number === 0
    Accessible.focusable: selectable
    Accessible.selected: selected
    Accessible.onPressAction: root.pressed()

    Rectangle {
        anchors.fill: parent
        anchors.margins: 2
        visible: root.number > 0
        radius: width / 2
        color: root.selected ? Theme.prominent
            : Theme.tinted(Theme.accent, !root.selectable ? 0 : tap.pressed ? 0.30
                : hover.hovered ? 0.18 : 0)
        border.width: root.today && !root.selected ? 1 : 0
        border.color: Theme.accentText

        FocusRing {
            shown: root.activeFocus
            radius: parent.radius
        }
    }

    Text {
        anchors.centerIn: parent
        visible: root.number > 0
        text: root.number
        textFormat: Text.PlainText
        font: root.selected || root.today ? Theme.subheadlineSemibold : Theme.subheadline
        color: root.selected ? Theme.prominentText : root.today ? Theme.accentText : Theme.primary
        opacity: root.selectable ? 1 : 0.34
        Accessible.ignored: true
    }

    HoverHandler {
        id: hover
    }

    TapHandler {
        id: tap

        enabled: root.selectable
        onTapped: root.pressed()
    }
}
