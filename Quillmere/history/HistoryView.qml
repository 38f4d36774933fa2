pragma ComponentBehavior: Bound

import QtQuick
import Quillmere.controls
import Quillmere.history
import Quillmere.theme

// The "Activity" route: every change by its day. A row opens by a click or Enter; with Ctrl and Shift
// rows are selected, which Delete removes.
FocusScope {
    id: root

    required property HistoryViewModel model

    readonly property string title: qsTr("Activity")

    objectName: "history.screen"
    Accessible.role: Accessible.Pane
    Accessible.name: root.title

    HistoryList {
        id: list

        anchors.fill: parent
        focus: true
        visible: !root.model.isEmpty
        items: root.model.items
        Accessible.name: root.title
        onOpened: row => root.model.open(row)
        onDeletionRequested: row => root.model.requestDeletionOfSelection(row)
        onMenuRequested: (row, position) => {
            menu.row = row;
            menu.popup(list, position.x, position.y);
        }
    }

    EmptyState {
        id: nothing

        anchors.centerIn: parent
        width: Math.min(360, parent.width - 2 * Theme.spaceXL)
        visible: root.model.isEmpty
        symbol: "plus.forwardslash.minus"
        title: qsTr("No changes yet")
        text: qsTr("Time you add or subtract appears here.")
        onVisibleChanged: (visible ? nothing : list).focus = true
    }

    ProgressRing {
        anchors.centerIn: parent
        visible: root.model.isLoading && patience.isOver
        Accessible.name: qsTr("Loading")
    }

    Timer {
        id: patience

        readonly property bool isOver: !running

        interval: 500
        running: true
    }

    PopupMenu {
        id: menu

        property int row: -1

        objectName: "history.menu"

        PopupMenuItem {
            text: qsTr("Delete")
            symbol: "trash"
            destructive: true
            onTriggered: root.model.requestDeletion(menu.row)
        }
    }

    ConfirmationPanel {
        shown: root.model.isDeletionPending
        title: root.model.deletionTitle
        message: root.model.deletionMessage
        confirmText: root.model.deleteTitle
        confirmButton.objectName: "history.confirmDelete"
        onConfirmed: root.model.confirmDeletion()
        onDismissed: root.model.dismissDeletion()
    }

    Connections {
        target: root.model

        // The row that the menu was opened for may be another now.
        function onContentChanged() {
            menu.close();
        }

        function onEditorChanged() {
            if (root.model.editor === null)
                return;
            form.setSource("qrc:/qt/qml/Quillmere/editor/AdjustmentEditorView.qml", {
                model: root.model.editor,
                focus: true
            });
            sheet.open();
        }
    }

    Connections {
        target: root.model.editor

        function onFinished() {
            sheet.close();
        }
    }

    Sheet {
        id: sheet

        // Before the form's model goes, its view is gone.
        onClosed: {
            form.source = "";
            root.model.closeEditor();
            list.takeFocusBack();
        }

        Loader {
            id: form

            anchors.fill: parent
            focus: true
        }
    }
}
