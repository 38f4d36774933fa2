import QtQuick
import Quillmere.composer
import Quillmere.controls

// The field of a note. Holds as much as a note may, however it is filled; Ctrl+Enter submits.
EntryArea {
    id: root

    required property NoteDraft draft

    signal submitted()

    // Gives the draft what the field holds and takes back out of it what was too much.
    function edit(): void {
        const editor = root.editor;
        if (editor.text === root.draft.text)
            return;
        const end = editor.cursorPosition;
        const cursor = root.draft.edit(editor.text, end);
        if (editor.text === root.draft.text)
            return;
        if (editor.canRedo)
            editor.undo(); // An undo brought the excess back: undo what put it in as well.
        else if (cursor < end)
            editor.remove(cursor, end);
        else
            editor.text = root.draft.text;
    }

    Component.onCompleted: root.text = root.draft.text
    onTextChanged: root.edit()
    Keys.onPressed: event => {
        const enter = event.key === Qt.Key_Return || event.key === Qt.Key_Enter;
        if (enter && event.modifiers & Qt.ControlModifier) {
            if (!event.isAutoRepeat)
                root.submitted();
            event.accepted = true;
        }
    }
}
