import QtQuick
import Quillmere.app
import Quillmere.shell

// The tray panel when no store could be opened.
StorageUnavailableView {
    required property WindowModel model
    required property ApplicationCommands commands

    focus: true
    compact: true
    supportURL: model.supportURL
    onQuitRequested: commands.quitRequested()
}
