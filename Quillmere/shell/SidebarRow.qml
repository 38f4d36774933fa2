import QtQuick
import QtQuick.Templates as T
import Quillmere.controls
import Quillmere.shell
import Quillmere.theme

// One route in the sidebar.
T.AbstractButton {
    id: root

    required property RouteItem route

    readonly property color tint: route.selected
        ? Theme.tinted(Theme.accent, down ? 0.20 : hovered ? 0.16 : 0.11)
        : Theme.tinted(Theme.primary, down ? 0.09 : hovered ? 0.05 : 0)

    objectName: "navigation." + route.rawValue
    implicitHeight: 36
    leftPadding: Theme.spaceS
    rightPadding: Theme.spaceS
    hoverEnabled: true
    text: route.title
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.description: route.selected ? qsTr("Selected") : ""
    Accessible.selectable: true
    Accessible.selected: route.selected
    onClicked: route.select()
    Accessible.onPressAction: root.clicked()
    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    background: Rectangle {
        radius: Theme.rowRadius
        color: root.tint

        Behavior on color { FadeMotion {} }
    }

    contentItem: Row {
        spacing: 10

        Rectangle {
            anchors.verticalCenter: parent.verticalCenter
            width: 3
            height: 18
            radius: width / 2
            color: root.route.selected ? Theme.accent : "transparent"
        }

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: root.route.systemImage
            size: 18
            color: root.route.selected ? Theme.accent : Theme.secondary
        }

        Text {
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            textFormat: Text.PlainText
            font: root.route.selected ? Theme.bodyMedium : Theme.body
            color: Theme.primary
            Accessible.ignored: true
        }
    }

    FocusRing {
        shown: root.visualFocus
        radius: Theme.rowRadius
    }
}
