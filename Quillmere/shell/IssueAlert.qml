import QtQuick
import Quillmere.controls
import Quillmere.shell

// Shows the application's issue while there is one. A newer issue takes the place of the one shown.
AlertPanel {
    id: root

    required property AppState appState

    function follow() {
        if (appState.hasIssue)
            open();
        else
            close();
    }

    title: appState.issue.title
    message: appState.issue.message
    onDismissed: appState.dismissIssue()
    Component.onCompleted: follow()

    Connections {
        target: root.appState

        function onIssueChanged() {
            root.follow();
        }
    }
}
