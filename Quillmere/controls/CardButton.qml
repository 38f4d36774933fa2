import QtQuick
import QtQuick.Layouts
import Quillmere.controls
import Quillmere.theme

// A card that can be pressed: a badge, a title, a line below it, and a chevron.
ButtonBase {
    id: root

    property string subtitle: ""
    property color tint: Theme.accent

    radius: 20
    implicitHeight: Math.max(74, implicitContentHeight + topPadding + bottomPadding)
    topPadding: 14
    bottomPadding: 14
    leftPadding: 18
    rightPadding: 18

    background: Surface {
        color: root.down ? Theme.cardPressed : root.hovered ? Theme.cardHover : Theme.card
        borderColor: Theme.hairline
        radius: root.radius
        shadowColor: Theme.shadow
        shadowBlur: 14
        shadowOffset: 4
    }

    contentItem: RowLayout {
        spacing: Theme.spaceM

        IconBadge {
            symbol: root.symbol
            tint: root.tint
        }

        ColumnLayout {
            spacing: 1
            Layout.fillWidth: true

            Text {
                Layout.fillWidth: true
                text: root.text
                textFormat: Text.PlainText
                font: Theme.headline
                color: Theme.primary
                elide: Text.ElideRight
                Accessible.ignored: true
            }

            Text {
                Layout.fillWidth: true
                text: root.subtitle
                textFormat: Text.PlainText
                font: Theme.subheadline
                color: Theme.secondary
                elide: Text.ElideRight
                Accessible.ignored: true
            }
        }

        Symbol {
            name: "chevron.right"
            size: 14
            color: Theme.secondary
        }
    }
}
