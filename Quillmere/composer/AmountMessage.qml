import QtQuick
import Quillmere.controls
import Quillmere.theme

// What is wrong with the amount, or how large it may be.
Row {
    id: root

    property string message: ""

    spacing: 6

    Symbol {
        anchors.verticalCenter: parent.verticalCenter
        visible: root.message !== ""
        name: "exclamationmark.circle"
        size: 14
        color: Theme.alertText
    }

    PlainText {
        text: root.message !== "" ? root.message : qsTr("Up to 24 hours per adjustment")
        font: Theme.caption
        color: root.message !== "" ? Theme.primary : Theme.secondary
        Accessible.role: root.message !== "" ? Accessible.AlertMessage : Accessible.StaticText
    }
}
