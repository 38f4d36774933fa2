import QtQuick
import Quillmere.composer
import Quillmere.controls

// A form for a change over the overview, open from when it is made.
Sheet {
    id: root

    required property TransactionComposerViewModel model

    Component.onCompleted: root.open()

    Connections {
        target: root.model

        function onFinished() {
            root.close();
        }
    }

    TransactionComposerView {
        anchors.fill: parent
        focus: true
        model: root.model
    }
}
