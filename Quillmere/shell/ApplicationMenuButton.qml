pragma ComponentBehavior: Bound

import QtQuick
import QtQml
import QtQuick.Templates as T
import Quillmere.controls
import Quillmere.shell
import Quillmere.theme

// Opens the application menu; F10 does too.
IconButton {
    id: root

    required property ApplicationCommands commands

    text: qsTr("Application menu")
    symbol: "ellipsis.circle"
    symbolSize: 18
    down: pressed || menu.opened
    Accessible.role: Accessible.ButtonMenu
    Accessible.description: qsTr("F10")
    onClicked: menu.openUnder(root)

    Connections {
        target: root.commands

        function onMenuRequested() {
            if (root.visible)
                root.clicked();
        }
    }

    PopupMenu {
        id: menu

        T.MenuItem {
            implicitHeight: 28
            enabled: false
            text: qsTr("Navigate")
            contentItem: Text {
                leftPadding: 31
                text: qsTr("Navigate")
                textFormat: Text.PlainText
                font: Theme.captionSemibold
                color: Theme.secondary
                verticalAlignment: Text.AlignVCenter
                Accessible.ignored: true
            }
        }

        Instantiator {
            model: root.commands.routes.routes
            onObjectAdded: (index, object) => menu.insertItem(index + 1, object as ApplicationMenuItem)
            onObjectRemoved: (index, object) => menu.removeItem(object as ApplicationMenuItem)

            ApplicationMenuItem {
                required property RouteItem modelData

                text: modelData.title
                shortcutText: modelData.shortcut
                current: modelData.selected
                onTriggered: root.commands.navigate(modelData)
            }
        }

        T.MenuSeparator {
            implicitWidth: 1
            implicitHeight: 9
            padding: 4
            contentItem: Divider {}
        }

        ApplicationMenuItem {
            text: qsTr("Settings…")
            shortcutText: "Ctrl+,"
            onTriggered: root.commands.settingsRequested()
        }

        ApplicationMenuItem {
            text: qsTr("Close")
            shortcutText: "Ctrl+W"
            onTriggered: root.commands.closeRequested()
        }

        ApplicationMenuItem {
            text: qsTr("Quit")
            shortcutText: "Ctrl+Q"
            onTriggered: root.commands.quitRequested()
        }
    }
}
