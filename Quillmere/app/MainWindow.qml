import QtQuick
import QtQuick.Templates as T
import Quillmere.app
import Quillmere.controls
import Quillmere.shell
import Quillmere.theme

// An ApplicationWindow, because that gives the focus back when a sheet or an alert closes.
T.ApplicationWindow {
    id: root

    required property MainWindowModel model

    // The views hold the store; they go at once when there is something else to show.
    function showContent() {
        switch (model.content) {
        case MainWindowModel.Scene:
            content.setSource("MainScene.qml", {
                appState: model.appState,
                storage: model.storage,
                scene: model.scene,
                commands: commands
            });
            break;
        case MainWindowModel.Reconnecting:
            content.source = "qrc:/qt/qml/Quillmere/shell/StorageReconnectView.qml";
            break;
        case MainWindowModel.Unavailable:
            content.setSource("UnavailableContent.qml", { model: model, commands: commands });
            break;
        }
    }

    title: qsTr("Quillmere")
    objectName: "main"
    width: 980
    height: 700
    minimumWidth: model.content === MainWindowModel.Scene ? 780 : 620
    minimumHeight: model.content === MainWindowModel.Scene ? 560 : 440
    color: Theme.window
    background: AppBackground {}
    visible: true
    Component.onCompleted: showContent()

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

    Connections {
        target: root.model

        function onContentChanged() {
            root.showContent();
        }
    }

    ApplicationCommands {
        id: commands

        routes: root.model.routes
        onCloseRequested: root.close()
        onQuitRequested: Qt.quit()
    }

    Loader {
        id: content

        anchors.fill: parent
        focus: true
    }
}
