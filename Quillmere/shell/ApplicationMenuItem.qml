import QtQuick
import QtQuick.Layouts
import Quillmere.controls
import Quillmere.theme

// A command of the application menu with its key at the far side.
PopupMenuItem {
    id: root

    property string shortcutText: ""
    // Whether the command leads to where the user is.
    property bool current: false

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    Accessible.description: shortcutText

    contentItem: RowLayout {
        spacing: Theme.spaceXL

        MenuLine {
            Layout.fillWidth: true
            text: root.text
            checked: root.current
        }

        Text {
            text: root.shortcutText
            textFormat: Text.PlainText
            font: Theme.caption
            color: Theme.secondary
            Accessible.ignored: true
        }
    }
}
