pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Quillmere.controls
import Quillmere.dashboard
import Quillmere.theme
import Quillmere.reports

// One day's sums and changes, as the content of a sheet.
FocusScope {
    id: root

    required property SelectedLedgerDay model

    signal done()

    objectName: "calendar.dayDetail"
    implicitWidth: Math.max(460, toolbar.implicitWidth)
    // Grows with its list; the sheet keeps within the window.
    implicitHeight: Math.max(460, changes.y + changes.topMargin + changes.contentHeight + changes.bottomMargin)
    Accessible.role: Accessible.Dialog
    Accessible.name: root.model.title
    Keys.forwardTo: [scrollKeys]
    // The only thing to press.
    Component.onCompleted: toolbar.nextItemInFocusChain().forceActiveFocus(Qt.TabFocusReason)

    LeavingKeys {}

    ScrollKeys {
        id: scrollKeys

        page: changes
    }

    SheetToolbar {
        id: toolbar

        width: parent.width
        title: root.model.title
        confirmText: qsTr("Done")
        onConfirmed: root.done()
    }

    Column {
        id: summary

        anchors.top: toolbar.bottom
        anchors.topMargin: Theme.spaceL
        x: Theme.spaceL
        width: parent.width - 2 * x
        spacing: Theme.spaceS

        Heading {
            text: qsTr("Summary")
        }

        DaySummary {
            width: parent.width
            figures: root.model.figures
        }

        Heading {
            topPadding: Theme.spaceS
            text: qsTr("Changes")
        }
    }

    ListView {
        id: changes

        anchors.top: summary.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        topMargin: Theme.spaceS
        bottomMargin: Theme.spaceL
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        model: root.model.changes
        T.ScrollBar.vertical: ThinScrollBar {}
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Changes")

        delegate: CardPart {
            id: part

            required property int index
            required property ledgerTransaction transaction

            readonly property int edge: 3

            first: part.index === 0
            last: part.index === changes.count - 1
            x: Theme.spaceL
            width: changes.width - 2 * x
            height: row.height + (part.first ? part.edge : 0) + (part.last ? part.edge : 0)

            LedgerTransactionRow {
                id: row

                x: Theme.spaceL
                y: part.first ? part.edge : 0
                width: parent.width - 2 * x
                transaction: part.transaction
            }

            Divider {
                x: row.x
                width: row.width
                visible: !part.first
            }
        }
    }
}
