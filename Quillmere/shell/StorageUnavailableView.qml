import QtQuick
import Quillmere.controls
import Quillmere.theme

// Shown in place of a window's content when no store could be opened.
FocusScope {
    id: root

    // The tray panel's metrics instead of a window's.
    property bool compact: false
    // Without it the link is left out.
    property url supportURL

    signal quitRequested()

    readonly property int contentPadding: compact ? 20 : 32

    objectName: "storage.unavailable"
    implicitWidth: (compact ? 330 : 480)
    implicitHeight: column.implicitHeight + 2 * contentPadding
    Accessible.role: Accessible.Pane
    Accessible.name: title.text

    Column {
        id: column

        anchors.centerIn: parent
        width: Math.min(parent.width, root.compact ? 330 : 480) - 2 * root.contentPadding
        spacing: root.compact ? 12 : 18

        Symbol {
            anchors.horizontalCenter: parent.horizontalCenter
            name: "externaldrive.badge.xmark"
            size: root.compact ? 34 : 48
            color: Theme.secondary
        }

        PlainText {
            id: title

            width: parent.width
            text: qsTr("Quillmere couldn’t open its data")
            font: root.compact ? Theme.headline : Theme.title2
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            Accessible.role: Accessible.Heading
        }

        PlainText {
            width: parent.width
            text: qsTr("Your existing time bank hasn’t been erased. Close and reopen Quillmere. If this keeps happening, install the latest system updates or contact support.")
            font: root.compact ? Theme.caption : Theme.body
            color: Theme.secondary
            lineHeight: 1.15
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }

        ProminentButton {
            anchors.horizontalCenter: parent.horizontalCenter
            visible: String(root.supportURL) !== ""
            text: qsTr("Get support")
            Accessible.role: Accessible.Link
            onClicked: Qt.openUrlExternally(root.supportURL)
        }

        BorderedButton {
            anchors.horizontalCenter: parent.horizontalCenter
            text: qsTr("Quit Quillmere")
            onClicked: root.quitRequested()
        }
    }
}
