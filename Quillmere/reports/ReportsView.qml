import QtQuick

// The "Calendar" route, without content yet.
Item {
    required property QtObject model

    objectName: "reports.screen"
    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Calendar")
}
