import QtQuick
import Quillmere.controls
import Quillmere.settings
import Quillmere.theme

// The settings: a route of the main window, and the content of the settings window.
FocusScope {
    id: root

    required property SettingsViewModel model

    property bool retryFailed: false

    // Again as the form gets its size.
    function revealRetry(): void {
        if (root.retryFailed && sync.retryButton.activeFocus)
            page.reveal(sync);
    }

    objectName: "settings.screen"
    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Settings")
    Component.onCompleted: root.model.appear()
    Keys.forwardTo: [scrollKeys]

    // The store was opened anew, and this form made anew: whoever asked for that is where they were.
    Connections {
        target: root.model

        function onStorageChanged() {
            root.retryFailed = root.model.didLastICloudRetryFail;
            if (root.retryFailed)
                sync.retryButton.forceActiveFocus(Qt.TabFocusReason);
        }
    }

    ScrollKeys {
        id: scrollKeys

        page: page
    }

    ScrollArea {
        id: page

        anchors.fill: parent
        maximumWidth: 620
        topPadding: Theme.spaceL
        spacing: Theme.spaceXL
        onContentHeightChanged: root.revealRetry()

        AppearanceSection {
            width: parent.width
            theme: root.model.theme
        }

        AdjustmentTypesSection {
            width: parent.width
            model: root.model.adjustmentTypes
            onKeyboardMoved: part => page.reveal(part)
        }

        MacSection {
            width: parent.width
            model: root.model
        }

        SyncSection {
            id: sync

            width: parent.width
            model: root.model
            onHeightChanged: root.revealRetry()
        }

        HelpSection {
            width: parent.width
            model: root.model
        }

        DataManagementSection {
            width: parent.width
            model: root.model.dataManagement
        }
    }
}
