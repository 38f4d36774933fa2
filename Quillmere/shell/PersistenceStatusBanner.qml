import QtQuick
import Quillmere.controls
import Quillmere.shell
import Quillmere.theme

// Tells under which conditions changes are kept, where that is not as it should be.
Rectangle {
    id: root

    required property int mode

    readonly property bool isGrave: mode === PersistenceMode.Temporary || mode === PersistenceMode.Unavailable
    readonly property color foreground: isGrave ? Theme.alertText : Theme.primary
    readonly property string text: textOf(mode)

    function textOf(mode: int): string {
        switch (mode) {
        case PersistenceMode.LocalOnly:
            return qsTr("iCloud sync is unavailable. Changes are saved on this device.");
        case PersistenceMode.Temporary:
            return qsTr("Storage is unavailable. Changes will be lost when Quillmere closes.");
        case PersistenceMode.Unavailable:
            return qsTr("Quillmere couldn't open storage.");
        }
        return "";
    }

    function symbolOf(mode: int): string {
        switch (mode) {
        case PersistenceMode.LocalOnly:
            return "icloud.slash";
        case PersistenceMode.Temporary:
            return "externaldrive.badge.xmark";
        case PersistenceMode.Unavailable:
            return "exclamationmark.triangle";
        }
        return "icloud";
    }

    implicitHeight: label.implicitHeight + 2 * Theme.spaceS
    color: isGrave ? Theme.tinted(Theme.alert, 0.13) : Theme.tinted(Theme.warm, 0.18)

    Accessible.role: Accessible.StaticText
    Accessible.name: text

    Row {
        id: label

        readonly property real room: root.width - 2 * Theme.spaceM - symbol.width - spacing

        anchors.centerIn: parent
        spacing: Theme.spaceS

        Symbol {
            id: symbol

            anchors.verticalCenter: parent.verticalCenter
            name: root.symbolOf(root.mode)
            size: 14
            color: root.foreground
        }

        Text {
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, label.room)
            text: root.text
            textFormat: Text.PlainText
            wrapMode: Text.Wrap
            font: Theme.footnoteMedium
            color: root.foreground
            Accessible.ignored: true
        }
    }
}
