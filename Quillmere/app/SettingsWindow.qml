import QtQuick
import QtQuick.Templates as T
import Quillmere.app
import Quillmere.controls
import Quillmere.shell
import Quillmere.theme

// The settings in a window of their own, which works whatever the main window shows. The theme is
// the main window's.
T.ApplicationWindow {
    id: root

    required property WindowModel model

    readonly property int contentHeight: model.content === WindowModel.Unavailable ? 440 : 580

    title: qsTr("Settings")
    objectName: "settings"
    width: 620
    height: contentHeight
    minimumWidth: width
    maximumWidth: width
    minimumHeight: contentHeight
    maximumHeight: contentHeight
    color: Theme.window
    background: AppBackground {}
    visible: true

    ApplicationCommands {
        id: commands

        routes: root.model.routes
        onCloseRequested: root.close()
        onQuitRequested: Qt.quit()
    }

    WindowContent {
        id: content

        anchors.fill: parent
        focus: true
        model: root.model
        commands: commands
        onSceneRequested: content.setSource("SettingsScene.qml", {
            appState: root.model.appState,
            storage: root.model.storage,
            widgetRefresh: root.model.widgetRefresh,
            scene: root.model.scene
        })
    }
}
