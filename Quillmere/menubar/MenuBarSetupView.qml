import QtQuick
import Quillmere.controls
import Quillmere.theme

// The tray panel before there is a time bank.
FocusScope {
    id: root

    signal openSetupChosen()

    objectName: "menuBar.setup"
    implicitWidth: 330
    implicitHeight: column.implicitHeight + 2 * Theme.cardPadding
    Accessible.role: Accessible.Pane
    Accessible.name: headline.text

    Column {
        id: column

        anchors.centerIn: parent
        width: root.width - 2 * Theme.cardPadding
        spacing: 14

        Symbol {
            anchors.horizontalCenter: parent.horizontalCenter
            name: "leaf.circle.fill"
            size: 44
            color: Theme.accent
        }

        PlainText {
            id: headline

            width: parent.width
            text: qsTr("Finish setting up Quillmere")
            font: Theme.headline
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            Accessible.role: Accessible.Heading
        }

        PlainText {
            width: parent.width
            text: qsTr("Open the app once to prepare your manual time bank.")
            font: Theme.subheadline
            color: Theme.secondary
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }

        ProminentButton {
            anchors.horizontalCenter: parent.horizontalCenter
            focus: true
            text: qsTr("Open setup")
            onClicked: root.openSetupChosen()
        }
    }
}
