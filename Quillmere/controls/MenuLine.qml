import QtQuick
import Quillmere.controls
import Quillmere.theme

// What a line of a menu shows: a check mark's place, a symbol where there is one, the text.
Item {
    id: root

    property string text: ""
    property string symbol: ""
    property bool checked: false
    property color color: Theme.primary

    implicitWidth: row.x + label.x + label.implicitWidth
    implicitHeight: row.implicitHeight
    Accessible.ignored: true

    Row {
        id: row

        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.spaceS

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: root.checked ? "checkmark" : ""
            size: 13
            color: Theme.primary
        }

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.symbol !== ""
            name: root.symbol
            size: 15
            color: root.color
        }

        Text {
            id: label

            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, root.width - x)
            text: root.text
            textFormat: Text.PlainText
            font: Theme.body
            color: root.color
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }
}
