import QtQuick
import QtQuick.Templates as T
import Quillmere.app
import Quillmere.controls
import Quillmere.shell
import Quillmere.theme

// An ApplicationWindow, because that gives the focus back when a sheet or an alert closes.
T.ApplicationWindow {
    id: root

    required property WindowModel model

    title: qsTr("Quillmere")
    objectName: "main"
    width: 980
    height: 700
    minimumWidth: model.content === WindowModel.Scene ? 780 : 620
    minimumHeight: model.content === WindowModel.Scene ? 560 : 440
    color: Theme.window
    background: AppBackground {}
    visible: true

    Binding {
        target: Theme
        property: "dark"
        value: root.model.appearance.dark
    }

    Binding {
        target: Theme
        property: "highContrast"
        value: root.model.appearance.highContrast
    }

    Binding {
        target: Theme
        property: "reducedMotion"
        value: root.model.appearance.reducedMotion
    }

    // The overlay shows while a sheet, a menu or an alert does.
    Binding {
        target: root.model.routes
        property: "held"
        value: root.T.Overlay.overlay.visible
    }

    ApplicationCommands {
        id: commands

        routes: root.model.routes
        onSettingsRequested: root.model.settingsRequested()
        onCloseRequested: root.close()
        onQuitRequested: Qt.quit()
    }

    WindowContent {
        id: content

        anchors.fill: parent
        focus: true
        model: root.model
        commands: commands
        onSceneRequested: content.setSource("MainScene.qml", {
            appState: root.model.appState,
            storage: root.model.storage,
            widgetRefresh: root.model.widgetRefresh,
            scene: root.model.scene,
            commands: commands
        })
    }
}
