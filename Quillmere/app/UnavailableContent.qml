import QtQuick
import Quillmere.app
import Quillmere.shell
import Quillmere.theme

// A window when no store could be opened.
FocusScope {
    id: root

    required property WindowModel model
    required property ApplicationCommands commands

    focus: true

    ApplicationMenuButton {
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: Theme.spaceS
        commands: root.commands
    }

    StorageUnavailableView {
        anchors.fill: parent
        focus: true
        supportURL: root.model.supportURL
        onQuitRequested: root.commands.quitRequested()
    }
}
