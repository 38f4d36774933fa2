import QtQuick
import QtQuick.Layouts
import Quillmere.controls
import Quillmere.theme

// What the form is for.
RowLayout {
    id: root

    property string title: ""
    property string subtitle: ""
    property string symbol: ""
    property color tint: Theme.accent

    spacing: Theme.spaceM

    IconBadge {
        symbol: root.symbol
        tint: root.tint
        size: 38
        radius: 11
    }

    ColumnLayout {
        Layout.fillWidth: true
        spacing: 1

        PlainText {
            Layout.fillWidth: true
            text: root.title
            font: Theme.title3
            elide: Text.ElideRight
        }

        PlainText {
            Layout.fillWidth: true
            text: root.subtitle
            font: Theme.subheadline
            color: Theme.secondary
            elide: Text.ElideRight
        }
    }
}
