import QtQuick
import Quillmere.theme
import Quillmere.controls

// One point of the guide: an image, a headline and a text.
Item {
    id: root

    required property string symbol
    required property string headline
    required property string text

    implicitHeight: texts.implicitHeight

    Symbol {
        x: 4
        y: 1
        name: root.symbol
        size: 20
        color: Theme.dark ? Theme.accent : Theme.accentText
    }

    Column {
        id: texts

        anchors.left: parent.left
        anchors.leftMargin: 28 + 14
        anchors.right: parent.right
        spacing: 3

        PlainText {
            width: parent.width
            text: root.headline
            font: Theme.headline
            wrapMode: Text.Wrap
        }

        PlainText {
            width: parent.width
            text: root.text
            font: Theme.body
            color: Theme.secondary
            lineHeight: 1.12
            wrapMode: Text.Wrap
        }
    }
}
