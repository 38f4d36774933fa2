import QtQuick
import QtQuick.Layouts
import Quillmere.theme
import Quillmere.controls

// One line of the first-run screen's list.
RowLayout {
    id: root

    required property string symbol
    required property string text

    spacing: 16

    Symbol {
        name: root.symbol
        size: 18
        color: Theme.accent
    }

    PlainText {
        Layout.fillWidth: true
        text: root.text
        font: Theme.headline
        wrapMode: Text.Wrap
    }
}
