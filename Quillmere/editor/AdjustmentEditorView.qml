import QtQuick
import Quillmere.composer
import Quillmere.controls
import Quillmere.editor
import Quillmere.theme

// The form for a change that is there already, or for a new one. Whoever shows it makes a new view
// model for each opening and closes the form at the model's `finished`. Its implicit size is what it
// needs; it scrolls where it gets less.
FocusScope {
    id: root

    required property AdjustmentEditorViewModel model

    readonly property int controlWidth: 230

    // A key held down since before the form opened saves nothing.
    function save(event: KeyEvent): void {
        if (!event.isAutoRepeat)
            root.model.save();
    }

    objectName: "adjustment.editor"
    implicitWidth: 480
    implicitHeight: Math.max(460, toolbar.height + form.contentHeight)
    Accessible.role: Accessible.Dialog
    Accessible.name: root.model.title
    Keys.onReturnPressed: event => root.save(event)
    Keys.onEnterPressed: event => root.save(event)
    Keys.onEscapePressed: root.model.cancel()

    SheetToolbar {
        id: toolbar

        anchors.left: parent.left
        anchors.right: parent.right
        title: root.model.title
        cancelText: qsTr("Cancel")
        confirmText: qsTr("Save")
        canConfirm: root.model.canSave
        confirmHint: root.model.saveHint
        onCanceled: root.model.cancel()
        onConfirmed: root.model.save()
    }

    ScrollArea {
        id: form

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: toolbar.bottom
        anchors.bottom: parent.bottom
        maximumWidth: width
        padding: 20
        bottomPadding: Theme.spaceXL

        FormSection {
            width: parent.width
            title: qsTr("Type")
            footer: root.model.directionCaption

            FormRow {
                first: true
                text: qsTr("Adjustment")

                MenuPicker {
                    width: root.controlWidth
                    model: root.model.categories
                    currentIndex: root.model.categoryIndex
                    Accessible.name: qsTr("Adjustment")
                    onActivated: index => root.model.categoryIndex = index
                }
            }

            FormRow {
                text: qsTr("Date")

                DatePicker {
                    width: root.controlWidth
                    model: root.model.date
                    Accessible.name: qsTr("Date")
                }
            }

            FormRow {
                visible: root.model.choosesDirection
                text: qsTr("Direction")

                SegmentedPicker {
                    objectName: "adjustment.direction"
                    width: root.controlWidth
                    titles: root.model.directionTitles
                    currentIndex: root.model.directionIndex
                    Accessible.name: qsTr("Direction")
                    onActivated: index => root.model.directionIndex = index
                }
            }
        }

        FormSection {
            width: parent.width
            title: qsTr("Time change")

            FormRow {
                first: true
                text: root.model.hoursText

                Stepper {
                    focus: true
                    value: root.model.hours
                    to: root.model.maximumHours
                    Accessible.name: root.model.hoursText
                    onModified: value => root.model.hours = value
                }
            }

            FormRow {
                text: root.model.minutesText

                Stepper {
                    enabled: root.model.choosesMinutes
                    value: root.model.minutes
                    to: root.model.maximumMinutes
                    stepSize: 5
                    Accessible.name: root.model.minutesText
                    onModified: value => root.model.minutes = value
                }
            }
        }

        Column {
            width: parent.width
            spacing: 6

            FieldLabel {
                x: Theme.spaceXS
                text: qsTr("Details")
                Accessible.role: Accessible.Heading
            }

            NoteField {
                width: parent.width
                draft: root.model.note
                placeholderText: qsTr("Optional note")
                minimumLines: 1
                maximumLines: 3
                editor.Accessible.name: qsTr("Optional note")
                onSubmitted: root.model.save()
            }

            PlainText {
                x: Theme.spaceXS
                text: root.model.note.counter
                font: Theme.caption
                color: Theme.secondary
            }
        }

        FormSection {
            width: parent.width
            visible: root.model.canDelete

            ActionRow {
                objectName: "adjustment.delete"
                first: true
                text: qsTr("Delete activity")
                symbol: "trash"
                tint: Theme.alertText
                onClicked: root.model.requestDelete()
            }
        }
    }

    ConfirmationPanel {
        title: qsTr("Delete this time-bank change?")
        message: qsTr("This can't be undone.")
        confirmText: qsTr("Delete activity")
        confirmButton.objectName: "adjustment.confirmDelete"
        shown: root.model.showingDeleteConfirmation
        onConfirmed: root.model.confirmDelete()
        onDismissed: root.model.dismissDeleteConfirmation()
    }
}
