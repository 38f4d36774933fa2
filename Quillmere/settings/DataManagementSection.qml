import QtQuick
import Quillmere.controls
import Quillmere.settings
import Quillmere.share
import Quillmere.theme

// All data out, back in, and away.
FormSection {
    id: root

    required property DataManagementViewModel model

    title: qsTr("Data management")
    footer: root.model.footer

    ActionRow {
        objectName: "settings.exportArchive"
        first: true
        symbol: "archivebox"
        text: qsTr("Export data archive")
        Accessible.description: qsTr("Shares a JSON copy of all Quillmere records")
        onClicked: root.model.archiveShare.save()

        ShareBehavior {
            share: root.model.archiveShare
            title: qsTr("Quillmere data archive")
            nameFilters: [qsTr("JSON files (*.json)")]
        }
    }

    ActionRow {
        objectName: "settings.importArchive"
        symbol: "square.and.arrow.down"
        text: qsTr("Import data archive")
        Accessible.description: qsTr("Selects a Quillmere JSON archive to merge")
        onClicked: root.model.selectArchive()
    }

    ActionRow {
        symbol: "trash"
        text: qsTr("Erase all Quillmere data")
        tint: Theme.alertText
        onClicked: root.model.askToErase()
    }

    DataManagementDialogs {
        model: root.model
    }
}
