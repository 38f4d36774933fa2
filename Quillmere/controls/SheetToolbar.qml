import QtQuick
import Quillmere.controls
import Quillmere.theme

// The top row of a sheet: its title in the middle, a button to cancel on the left, one to confirm on
// the right, which can be pressed while `canConfirm`; an empty text leaves the button out.
Item {
    id: root

    property string title: ""
    property string cancelText: ""
    property string confirmText: ""
    property bool canConfirm: true
    property string confirmHint: ""

    signal canceled()
    signal confirmed()

    implicitWidth: 2 * Math.max(cancel.width, confirm.width) + label.implicitWidth + 6 * Theme.spaceM
    implicitHeight: 44

    BorderedButton {
        id: cancel

        anchors.left: parent.left
        anchors.leftMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        visible: text !== ""
        text: root.cancelText
        onClicked: root.canceled()
    }

    PlainText {
        id: label

        anchors.centerIn: parent
        width: Math.min(implicitWidth, root.width - 2 * Math.max(cancel.width, confirm.width) - 48)
        text: root.title
        font: Theme.headline
        elide: Text.ElideRight
        Accessible.role: Accessible.Heading
    }

    ProminentButton {
        id: confirm

        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        visible: text !== ""
        topPadding: cancel.topPadding
        bottomPadding: cancel.bottomPadding
        leftPadding: cancel.leftPadding
        rightPadding: cancel.rightPadding
        height: Theme.compactControlHeight
        font: Theme.subheadlineSemibold
        enabled: root.canConfirm
        text: root.confirmText
        Accessible.description: root.confirmHint
        onClicked: root.confirmed()
    }

    Divider {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
    }
}
