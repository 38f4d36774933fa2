import QtQuick
import QtQuick.Layouts
import Quillmere.theme
import Quillmere.controls

// The two ways to record a change, and the way to the guide.
ColumnLayout {
    id: root

    // As much as leaves the longer subtitle its room in the smallest window.
    readonly property int cardPadding: 16
    readonly property alias addCard: addCard

    signal addChosen()
    signal takeChosen()
    signal guideChosen()

    spacing: Theme.spaceS

    RowLayout {
        Layout.fillWidth: true

        Heading {
            Layout.fillWidth: true
            text: qsTr("Record time")
        }

        IconButton {
            id: guide

            objectName: "overview.guide"
            Layout.rightMargin: (guide.symbolSize - guide.width) / 2
            text: qsTr("How Quillmere works")
            symbol: "info.circle"
            onClicked: root.guideChosen()
        }
    }

    RowLayout {
        Layout.fillWidth: true
        spacing: Theme.spaceM

        CardButton {
            id: addCard

            objectName: "transaction.action.add"
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            leftPadding: root.cardPadding
            rightPadding: root.cardPadding
            text: qsTr("Add time")
            subtitle: qsTr("Worked extra")
            symbol: "plus"
            tint: Theme.accent
            Accessible.description: qsTr("Opens the time entry form")
            onClicked: root.addChosen()
        }

        CardButton {
            objectName: "transaction.action.take"
            Layout.fillWidth: true
            Layout.preferredWidth: 1
            leftPadding: root.cardPadding
            rightPadding: root.cardPadding
            text: qsTr("Take flex time")
            subtitle: qsTr("Use time from your bank")
            symbol: "minus"
            tint: Theme.alert
            Accessible.description: qsTr("Opens the time entry form")
            onClicked: root.takeChosen()
        }
    }
}
