import QtQuick
import Quillmere.controls
import Quillmere.shell

// Opens the application menu, which is made then; F10 does too.
IconButton {
    id: root

    required property ApplicationCommands commands

    property var menu: null

    text: qsTr("Application menu")
    symbol: "ellipsis.circle"
    symbolSize: 18
    down: pressed || (menu !== null && menu.opened)
    Accessible.role: Accessible.ButtonMenu
    Accessible.description: qsTr("F10")
    onClicked: {
        if (root.menu === null)
            root.menu = Qt.createComponent("ApplicationMenu.qml").createObject(root, { commands: root.commands });
        root.menu.openUnder(root);
    }

    Connections {
        target: root.commands

        function onMenuRequested() {
            if (root.visible)
                root.clicked();
        }
    }
}
