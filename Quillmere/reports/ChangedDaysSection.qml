pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Quillmere.controls
import Quillmere.theme
import Quillmere.reports

// The days that changed, in order.
ColumnLayout {
    id: root

    required property QtObject days
    readonly property alias count: rows.count

    signal dayRequested(row: int)

    spacing: Theme.spaceS

    Heading {
        text: qsTr("Changed days")
    }

    SoftCard {
        Layout.fillWidth: true
        topPadding: Theme.spaceS
        bottomPadding: Theme.spaceS
        leftPadding: Theme.spaceS
        rightPadding: Theme.spaceS

        contentItem: ColumnLayout {
            spacing: 0

            Repeater {
                id: rows

                model: root.days

                ChangedDayRow {
                    Layout.fillWidth: true
                    onClicked: root.dayRequested(row)
                }
            }
        }
    }
}
