import QtQuick

// The "Activity" route, without content yet.
Item {
    required property QtObject model

    objectName: "history.screen"
    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Activity")
}
