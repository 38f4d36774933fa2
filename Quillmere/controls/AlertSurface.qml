import QtQuick
import QtQuick.Layouts
import Quillmere.controls
import Quillmere.theme

// What alerts and confirmations share: a panel above everything else with a title, a message, and
// what the user may answer below. Escape closes it; the focus goes back to where it was.
ModalPanel {
    id: root

    property string title: ""
    property string message: ""
    default property alias answers: answers.data

    width: Math.min(360, parent.width - 2 * margins)
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: Theme.spaceXL
    z: 1

    ColumnLayout {
        width: parent.width
        spacing: Theme.spaceS
        Accessible.role: Accessible.AlertMessage
        Accessible.name: root.title
        Accessible.description: root.message

        PlainText {
            Layout.fillWidth: true
            text: root.title
            font: Theme.headline
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }

        PlainText {
            Layout.fillWidth: true
            text: root.message
            font: Theme.subheadline
            color: Theme.secondary
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }

        RowLayout {
            id: answers

            Layout.fillWidth: true
            Layout.topMargin: Theme.spaceS
            spacing: Theme.spaceS
        }
    }
}
