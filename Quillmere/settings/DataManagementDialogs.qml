import QtQuick
import Quillmere.controls
import Quillmere.settings

// What the section "Data management" asks and tells.
Item {
    id: root

    required property DataManagementViewModel model

    // Every notice is told, also one with the words of the one before.
    readonly property string noticeId: root.model.noticeId

    onNoticeIdChanged: {
        if (root.noticeId !== "")
            notice.open();
        else
            notice.close();
    }

    ArchiveDialog {
        parentWindow: root.Window.window
        model: root.model
    }

    ConfirmationPanel {
        shown: root.model.hasPendingImport
        title: root.model.importTitle
        message: root.model.importMessage
        confirmText: qsTr("Merge archive")
        confirmButton.objectName: "settings.confirmImport"
        confirmButton.destructive: false
        onConfirmed: root.model.mergeArchive()
        onDismissed: root.model.cancelImport()
    }

    AlertPanel {
        id: notice

        title: qsTr("Archive imported")
        message: root.model.noticeMessage
        buttonText: qsTr("Done")
        onDismissed: root.model.dismissNotice()
    }

    ConfirmationPanel {
        shown: root.model.showingEraseConfirmation
        title: qsTr("Erase all Quillmere data?")
        message: root.model.eraseMessage
        confirmText: qsTr("Erase all data")
        onConfirmed: root.model.eraseAll()
        onDismissed: root.model.cancelErase()
    }
}
