import QtQuick
import Quillmere.controls
import Quillmere.theme

// A button's symbol and text in a row, in the middle of it.
Item {
    id: root

    property string text: ""
    property string symbol: ""
    property font font: Theme.bodyMedium
    property color color: Theme.primary
    property real symbolSize: Math.round(font.pixelSize * 0.95)

    implicitWidth: row.implicitWidth
    implicitHeight: row.implicitHeight

    Row {
        id: row

        anchors.centerIn: parent
        spacing: Theme.spaceS

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.symbol !== ""
            name: root.symbol
            size: root.symbolSize
            color: root.color
        }

        Text {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.text !== ""
            text: root.text
            textFormat: Text.PlainText
            font: root.font
            color: root.color
            Accessible.ignored: true
        }
    }
}
