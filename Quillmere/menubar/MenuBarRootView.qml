import QtQuick
import Quillmere.menubar

// The tray panel on an open store. As large as its content wants.
FocusScope {
    id: root

    required property MenuBarRootViewModel model
    property bool opensUpwards: false
    property real maximumHeight: Infinity

    signal openAppChosen()
    signal quitChosen()

    implicitWidth: content.implicitWidth
    implicitHeight: content.implicitHeight
    Component.onCompleted: root.model.prepare()

    Loader {
        id: content

        anchors.fill: parent
        focus: true
        sourceComponent: root.model.isSetUp ? timeBank : setup
    }

    Component {
        id: timeBank

        MenuBarView {
            focus: true
            model: root.model.timeBank // qmllint disable unqualified
            opensUpwards: root.opensUpwards // qmllint disable unqualified
            maximumHeight: root.maximumHeight // qmllint disable unqualified
            onOpenAppChosen: root.openAppChosen() // qmllint disable unqualified
            onQuitChosen: root.quitChosen() // qmllint disable unqualified
        }
    }

    Component {
        id: setup

        MenuBarSetupView {
            focus: true
            onOpenSetupChosen: root.openAppChosen() // qmllint disable unqualified
        }
    }
}
