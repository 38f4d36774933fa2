import QtQuick
import QtQuick.Dialogs
import Quillmere.settings

// Chooses an archive. Open as long as it exists.
FileDialog {
    id: root

    required property DataManagementViewModel model

    title: qsTr("Import data archive")
    fileMode: FileDialog.OpenFile
    currentFolder: root.model.archiveShare.suggestedFolder
    nameFilters: [qsTr("JSON files (*.json)"), qsTr("All files (*)")]
    onAccepted: root.model.readArchive([root.selectedFile])
    onRejected: root.model.readArchive([])
    Component.onCompleted: root.open()
}
