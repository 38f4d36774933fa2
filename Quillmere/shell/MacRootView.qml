pragma ComponentBehavior: Bound

import QtQuick
import Quillmere.controls
import Quillmere.shell
import Quillmere.theme

// The main window's frame: the routes at the side, and the selected one's screen under its title.
FocusScope {
    id: root

    required property MacRootViewModel model
    required property ApplicationCommands commands

    readonly property int headerHeight: 44

    function showScreen() {
        screen.setSource(model.screen, { model: model.screenModel, focus: true });
    }

    Component.onCompleted: showScreen()

    Connections {
        target: root.model

        function onScreenChanged() {
            root.showScreen();
        }
    }

    Rectangle {
        id: sidebar

        width: 184
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        color: Theme.sidebar
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Navigate")

        Column {
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.leftMargin: 10
            anchors.rightMargin: 10
            anchors.topMargin: 16
            spacing: Theme.spaceXS

            Repeater {
                id: rows

                model: root.model.selection.routes

                SidebarRow {
                    id: row

                    required property RouteItem modelData
                    required property int index

                    width: parent?.width ?? 0
                    route: modelData
                    Keys.onUpPressed: root.focusRow(row.index - 1)
                    Keys.onDownPressed: root.focusRow(row.index + 1)
                }
            }
        }
    }

    Divider {
        id: sidebarEdge

        anchors.left: sidebar.right
        height: parent.height
    }

    Item {
        id: header

        anchors.left: sidebarEdge.right
        anchors.right: parent.right
        height: root.headerHeight

        PlainText {
            anchors.left: parent.left
            anchors.leftMargin: 20
            anchors.right: menuButton.left
            anchors.rightMargin: Theme.spaceS
            anchors.verticalCenter: parent.verticalCenter
            text: root.model.selection.selectedItem.title
            font: Theme.headline
            elide: Text.ElideRight
            Accessible.role: Accessible.Heading
        }

        ApplicationMenuButton {
            id: menuButton

            anchors.right: parent.right
            anchors.rightMargin: Theme.spaceM
            anchors.verticalCenter: parent.verticalCenter
            commands: root.commands
        }

        Divider {
            anchors.bottom: parent.bottom
            width: parent.width
        }
    }

    // A screen that is shown has the keyboard, unless the routes have it.
    Loader {
        id: screen

        focus: true
        anchors.left: header.left
        anchors.right: parent.right
        anchors.top: header.bottom
        anchors.bottom: parent.bottom
    }

    function focusRow(index: int) {
        const row = rows.itemAt(index);
        if (row !== null)
            row.forceActiveFocus(Qt.TabFocusReason);
    }
}
