import QtQuick
import QtQuick.Layouts
import Quillmere.theme
import Quillmere.controls
import Quillmere.dashboard

// The latest changes, and the way to all of them.
ColumnLayout {
    id: root

    required property RecentActivityModel items
    required property url historyURL

    spacing: Theme.spaceS

    RowLayout {
        Layout.fillWidth: true

        Heading {
            Layout.fillWidth: true
            text: qsTr("Recent activity")
        }

        LinkButton {
            // Its text, not its ground, ends where the card ends.
            Layout.rightMargin: -rightPadding
            text: qsTr("See all")
            visible: String(root.historyURL) !== ""
            onClicked: Qt.openUrlExternally(root.historyURL)
        }
    }

    SoftCard {
        Layout.fillWidth: true
        topPadding: Theme.spaceXS
        bottomPadding: Theme.spaceXS

        contentItem: ColumnLayout {
            spacing: 0

            Repeater {
                model: root.items

                RecentActivityRow {}
            }
        }
    }
}
