import QtQuick
import Quillmere.shell
import Quillmere.theme
import Quillmere.widget

// What surrounds the content of every window on an open store: the status banner above it, the alert
// and the progress of long work over it, and behind it what keeps the widget snapshot current.
FocusScope {
    id: root

    // How much of the height the banner takes.
    readonly property real bannerHeight: banner.height
    required property AppState appState
    required property AppStorageController storage
    required property WidgetRefreshObserverViewModel widgetRefresh
    default property alias content: slot.data

    WidgetRefreshObserver {
        model: root.widgetRefresh
    }

    // Keeps the window's glow from tinting the banner.
    Rectangle {
        anchors.fill: banner
        color: Theme.window
    }

    Loader {
        id: banner

        anchors.left: parent.left
        anchors.right: parent.right
        active: root.storage.mode !== PersistenceMode.ICloud
        sourceComponent: PersistenceStatusBanner {
            mode: root.storage.mode // qmllint disable unqualified
        }
    }

    FocusScope {
        id: slot

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: banner.bottom
        anchors.bottom: parent.bottom
        focus: true
    }

    // What seldom shows is made when it first does.
    Loader {
        id: workPanel

        readonly property bool wanted: root.appState.work.isHoldingInput || root.appState.work.isShown

        function make() {
            if (workPanel.wanted && workPanel.status === Loader.Null)
                workPanel.setSource("WorkPanel.qml", { work: root.appState.work });
        }

        onWantedChanged: workPanel.make()
        Component.onCompleted: workPanel.make()
    }

    Loader {
        id: issueAlert

        readonly property bool wanted: root.appState.hasIssue

        function make() {
            if (issueAlert.wanted && issueAlert.status === Loader.Null)
                issueAlert.setSource("IssueAlert.qml", { appState: root.appState });
        }

        onWantedChanged: issueAlert.make()
        Component.onCompleted: issueAlert.make()
    }
}
