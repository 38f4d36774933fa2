import QtQuick
import Quillmere.settings
import Quillmere.shell

// The settings window's content on an open store.
AppRootContainer {
    id: root

    required property SettingsViewModel scene

    focus: true

    SettingsView {
        anchors.fill: parent
        focus: true
        model: root.scene
    }
}
