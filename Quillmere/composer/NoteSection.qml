import QtQuick
import QtQuick.Layouts
import Quillmere.composer
import Quillmere.controls

// What the time was for. Holds as much as a note may, however it is filled; Ctrl+Enter saves.
ColumnLayout {
    id: root

    required property TransactionComposerViewModel model

    // Gives the model what the field holds and takes back out of it what was too much.
    function edit(): void {
        const editor = field.editor;
        if (editor.text === root.model.note)
            return;
        const end = editor.cursorPosition;
        const cursor = root.model.editNote(editor.text, end);
        if (editor.text === root.model.note)
            return;
        if (editor.canRedo)
            editor.undo(); // An undo brought the excess back: undo what put it in as well.
        else if (cursor < end)
            editor.remove(cursor, end);
        else
            editor.text = root.model.note;
    }

    spacing: 6

    FieldLabel {
        text: qsTr("Note (recommended)")
    }

    EntryArea {
        id: field

        Layout.fillWidth: true
        placeholderText: qsTr("What was this time for?")
        minimumLines: 2
        maximumLines: 4
        editor.objectName: "transaction.note"
        editor.Accessible.name: qsTr("Note (recommended)")
        onTextChanged: root.edit()
        Keys.onPressed: event => {
            const enter = event.key === Qt.Key_Return || event.key === Qt.Key_Enter;
            if (enter && event.modifiers & Qt.ControlModifier) {
                root.model.save();
                event.accepted = true;
            }
        }
    }
}
