import QtQuick
import QtQuick.Templates as T
import Quillmere.controls
import Quillmere.theme

// A card around its content: padding 20, corners of 24, a hairline and a faint shadow. `glow` tints
// it from the top left corner to nothing.
T.Pane {
    id: root

    property color glow: "transparent"

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: Theme.cardPadding

    background: Surface {
        color: Theme.card
        borderColor: Theme.hairline
        radius: Theme.cardRadius
        shadowColor: Theme.shadow
        shadowBlur: 14
        shadowOffset: 4

        GradientFill {
            anchors.fill: parent
            visible: root.glow.a > 0
            colors: [root.glow, Theme.tinted(root.glow, 0)]
            radius: Theme.cardRadius
        }
    }
}
