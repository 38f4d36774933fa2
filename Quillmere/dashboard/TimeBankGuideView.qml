import QtQuick
import Quillmere.controls
import Quillmere.dashboard

// A short guide, as the content of a sheet.
FocusScope {
    id: root

    readonly property string title: qsTr("How Quillmere works")

    signal done()

    objectName: "guide.screen"
    implicitWidth: 480
    implicitHeight: toolbar.height + points.contentHeight

    Accessible.role: Accessible.Dialog
    Accessible.name: root.title
    Keys.forwardTo: [scrollKeys]
    // The only thing to press.
    Component.onCompleted: toolbar.nextItemInFocusChain().forceActiveFocus(Qt.TabFocusReason)

    LeavingKeys {}

    ScrollKeys {
        id: scrollKeys

        page: points
    }

    SheetToolbar {
        id: toolbar

        width: parent.width
        title: root.title
        confirmText: qsTr("Done")
        onConfirmed: root.done()
    }

    ScrollArea {
        id: points

        anchors.top: toolbar.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        padding: 24
        spacing: 22

        GuideItem {
            width: parent.width
            symbol: "plus.forwardslash.minus"
            headline: qsTr("Keep one clear balance")
            text: qsTr("Add time when you work extra and subtract time when you use your flex time.")
        }

        GuideItem {
            width: parent.width
            symbol: "1.circle"
            headline: qsTr("Choose what happened")
            text: qsTr("Start with Add time or Take flex time, then enter the amount in one focused form.")
        }

        GuideItem {
            width: parent.width
            symbol: "number"
            headline: qsTr("Set the amount quickly")
            text: qsTr("Use the one-hour controls or the 1, 2, 4 and 8 hour shortcuts. Decimal hours are supported too.")
        }

        GuideItem {
            width: parent.width
            symbol: "text.bubble"
            headline: qsTr("Add context when taking time")
            text: qsTr("Taking flex time includes a category; adding time stays simple. A note is recommended for both.")
        }

        GuideItem {
            width: parent.width
            symbol: "calendar"
            headline: qsTr("Review every change")
            text: qsTr("Activity lists individual entries, while Calendar shows how your balance changed over time.")
        }

        GuideItem {
            width: parent.width
            symbol: "icloud"
            headline: qsTr("Private sync")
            text: qsTr("When iCloud is available, your time bank syncs privately between your Apple devices.")
        }
    }
}
