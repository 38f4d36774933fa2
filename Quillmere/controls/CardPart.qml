import QtQuick
import Quillmere.controls
import Quillmere.theme

// What one row draws of a card that several rows of a list stand on: reaches beyond the row where the
// card goes on, and its shadow where the card ends.
Item {
    id: root

    required property bool first
    required property bool last

    readonly property int reach: 40

    Item {
        x: -root.reach
        y: root.first ? -root.reach : 0
        width: root.width + 2 * root.reach
        height: root.height + (root.first ? root.reach : 0) + (root.last ? root.reach : 0)
        clip: true

        Surface {
            readonly property real longer: root.height + 2 * root.reach

            x: root.reach
            y: root.first ? root.reach : root.last ? root.height - height : -root.reach
            width: root.width
            height: root.first && root.last ? root.height : longer
            color: Theme.card
            borderColor: Theme.hairline
            radius: Theme.cardRadius
            shadowColor: Theme.shadow
            shadowBlur: 14
            shadowOffset: 4
        }
    }
}
