import QtQuick
import Quillmere.controls
import Quillmere.settings
import Quillmere.theme

// The settings: a route of the main window, and the content of the settings window.
FocusScope {
    id: root

    required property SettingsViewModel model

    objectName: "settings.screen"
    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Settings")
    Component.onCompleted: root.model.appear()
    Keys.forwardTo: [scrollKeys]

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

        AppearanceSection {
            width: parent.width
            theme: root.model.theme
        }

        AdjustmentTypesSection {
            width: parent.width
            model: root.model.adjustmentTypes
        }

        MacSection {
            width: parent.width
            model: root.model
        }

        SyncSection {
            width: parent.width
            model: root.model
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
