import QtQuick
import QtQuick.Layouts
import Quillmere.composer
import Quillmere.controls

// What the time was for.
ColumnLayout {
    id: root

    required property TransactionComposerViewModel model

    spacing: 6

    FieldLabel {
        text: qsTr("Note (recommended)")
    }

    NoteField {
        Layout.fillWidth: true
        draft: root.model.note
        placeholderText: qsTr("What was this time for?")
        minimumLines: 2
        maximumLines: 4
        editor.objectName: "transaction.note"
        editor.Accessible.name: qsTr("Note (recommended)")
        onSubmitted: root.model.save()
    }
}
