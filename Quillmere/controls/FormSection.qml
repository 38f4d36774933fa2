import QtQuick
import Quillmere.controls
import Quillmere.theme

// A group of a form: its title, its rows on one surface, and what there is to say about them.
Column {
    id: root

    property string title: ""
    property string footer: ""
    default property alias content: rows.data

    readonly property int inset: 4

    spacing: 6
    Accessible.role: Accessible.Grouping
    Accessible.name: root.title

    FieldLabel {
        x: root.inset
        width: root.width - 2 * root.inset
        visible: root.title !== ""
        text: root.title
        elide: Text.ElideRight
        Accessible.role: Accessible.Heading
    }

    Surface {
        width: root.width
        height: rows.height
        color: Theme.card
        borderColor: Theme.hairline
        radius: 18
        shadowColor: Theme.shadow
        shadowBlur: 14
        shadowOffset: 4

        Column {
            id: rows

            width: parent.width
        }
    }

    PlainText {
        x: root.inset
        width: root.width - 2 * root.inset
        visible: text !== ""
        text: root.footer
        font: Theme.caption
        color: Theme.secondary
        lineHeight: 1.15
        wrapMode: Text.Wrap
    }
}
