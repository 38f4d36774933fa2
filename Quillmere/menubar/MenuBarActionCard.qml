import QtQuick
import Quillmere.controls
import Quillmere.theme

// One of the two ways to record a change. `selected` while its form is open.
ButtonBase {
    id: root

    property color tint: Theme.accent
    property bool selected: false

    radius: 20
    implicitHeight: Math.max(82, implicitContentHeight + topPadding + bottomPadding)
    topPadding: 14
    bottomPadding: 14
    leftPadding: 15
    rightPadding: 15

    background: Surface {
        color: root.down ? Theme.cardPressed : root.hovered ? Theme.cardHover : Theme.card
        borderColor: root.selected ? root.tint : Theme.hairline
        borderWidth: root.selected && Theme.highContrast ? 2 : 1
        radius: root.radius
        shadowColor: Theme.shadow
        shadowBlur: 14
        shadowOffset: 4
    }

    contentItem: Column {
        spacing: Theme.spaceS

        IconBadge {
            symbol: root.symbol
            tint: root.tint
            size: 30
        }

        Text {
            width: parent.width
            text: root.text
            textFormat: Text.PlainText
            font: Theme.headline
            color: Theme.primary
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
}
