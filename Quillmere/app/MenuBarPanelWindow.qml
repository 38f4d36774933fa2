import QtQuick
import QtQuick.Templates as T
import Quillmere.app
import Quillmere.controls
import Quillmere.shell
import Quillmere.theme

// The window under the tray item. As large as its content wants. The theme is the main window's.
T.ApplicationWindow {
    id: root

    required property WindowModel model
    required property MenuBarPanel panel

    title: qsTr("Quillmere time bank")
    objectName: "menuBar"
    flags: Qt.Tool | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint
    color: Theme.window
    background: AppBackground {}

    ApplicationCommands {
        id: commands

        routes: root.model.routes
        onSettingsRequested: root.model.settingsRequested()
        onCloseRequested: root.panel.close()
        onQuitRequested: root.panel.quitRequested()
    }

    WindowContent {
        id: content

        anchors.fill: parent
        focus: true
        model: root.model
        commands: commands
        unavailable: "MenuBarUnavailableContent.qml"
        Keys.onEscapePressed: root.panel.close()
        onSceneRequested: content.setSource("MenuBarScene.qml", {
            appState: root.model.appState,
            storage: root.model.storage,
            widgetRefresh: root.model.widgetRefresh,
            scene: root.model.scene,
            panel: root.panel
        })
    }

    // There is no frame around the window.
    Rectangle {
        anchors.fill: parent
        color: "transparent"
        border.width: Theme.hairlineWidth
        border.color: Theme.controlBorder
    }

    Binding {
        target: root.panel
        property: "contentSize"
        value: Qt.size(content.implicitWidth, content.implicitHeight)
    }
}
