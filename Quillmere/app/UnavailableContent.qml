import QtQuick
import Quillmere.app
import Quillmere.shell
import Quillmere.theme

// The main window when no store could be opened.
FocusScope {
    id: root

    required property MainWindowModel model
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
