import QtQuick
import QtQuick.Dialogs
import Quillmere.settings
import Quillmere.share

// Chooses an archive.
ReachableFileDialog {
    id: root

    required property DataManagementViewModel model

    readonly property bool shown: root.model.showingArchiveImporter

    onShownChanged: {
        if (root.shown)
            root.open();
    }

    title: qsTr("Import data archive")
    fileMode: FileDialog.OpenFile
    currentFolder: root.model.archiveShare.suggestedFolder
    nameFilters: [qsTr("JSON files (*.json)"), qsTr("All files (*)")]
    onAccepted: root.model.readArchive([root.selectedFile])
    onRejected: root.model.readArchive([])
}
