pragma ComponentBehavior: Bound

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
            text: qsTr("See all")
            visible: root.historyURL.toString() !== ""
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
                id: rows

                model: root.items

                ColumnLayout {
                    id: row

                    required property int index
                    required property ledgerTransaction transaction

                    spacing: 0

                    Divider {
                        Layout.fillWidth: true
                        visible: row.index > 0
                    }

                    LedgerTransactionRow {
                        objectName: "overview.recent.item"
                        Layout.fillWidth: true
                        transaction: row.transaction
                    }
                }
            }
        }
    }
}
