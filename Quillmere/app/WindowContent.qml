import QtQuick
import Quillmere.app
import Quillmere.shell

// What a window shows at the moment. The host loads its scene when it is asked for.
Loader {
    id: root

    required property WindowModel model
    required property ApplicationCommands commands
    // What stands here without a store; it is given model and commands.
    property url unavailable: "UnavailableContent.qml"

    signal sceneRequested()

    // The views hold the store; they go at once when there is something else to show.
    function show() {
        switch (model.content) {
        case WindowModel.Scene:
            root.sceneRequested();
            break;
        case WindowModel.Reconnecting:
            root.source = "qrc:/qt/qml/Quillmere/shell/StorageReconnectView.qml";
            break;
        case WindowModel.Unavailable:
            root.setSource(root.unavailable, { model: model, commands: commands });
            break;
        }
    }

    Component.onCompleted: show()

    Connections {
        target: root.model

        function onContentChanged() {
            root.show();
        }
    }
}
