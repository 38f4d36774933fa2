pragma ComponentBehavior: Bound

import QtQuick
import QtQml
import QtQuick.Templates as T
import Quillmere.controls
import Quillmere.shell
import Quillmere.theme

// The application menu.
PopupMenu {
    id: root

    required property ApplicationCommands commands

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
        onObjectAdded: (index, object) => root.insertItem(index + 1, object as ApplicationMenuItem)
        onObjectRemoved: (index, object) => root.removeItem(object as ApplicationMenuItem)

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
