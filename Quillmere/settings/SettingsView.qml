import QtQuick

// The "Settings" route, without content yet.
Item {
    required property QtObject model

    objectName: "settings.screen"
    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Settings")
}
