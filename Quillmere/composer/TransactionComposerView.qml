import QtQuick
import QtQuick.Layouts
import Quillmere.composer
import Quillmere.controls
import Quillmere.theme

// The form for one change of the time bank. Whoever shows it makes a new view model for each opening
// and closes the form at the model's `finished`. As wide as `compact` says; its implicit height is
// what it needs, and it scrolls where it gets less.
FocusScope {
    id: root

    required property TransactionComposerViewModel model
    property bool compact: false

    readonly property int contentPadding: compact ? 18 : 24

    // A key held down since before the form opened saves nothing.
    function save(event: KeyEvent): void {
        if (!event.isAutoRepeat)
            root.model.save();
    }

    objectName: "transaction.composer"
    implicitWidth: compact ? 360 : 520
    implicitHeight: Math.max(compact ? 330 : 500,
                             toolbar.height + form.implicitHeight + 2 * contentPadding)
    Accessible.role: Accessible.Dialog
    Accessible.name: root.model.title
    Component.onCompleted: root.model.ensureValidCategory()
    Keys.onReturnPressed: event => root.save(event)
    Keys.onEnterPressed: event => root.save(event)
    Keys.onEscapePressed: root.model.cancel()

    SheetToolbar {
        id: toolbar

        anchors.left: parent.left
        anchors.right: parent.right
        title: root.model.title
        cancelText: qsTr("Cancel")
        onCanceled: root.model.cancel()
    }

    ScrollArea {
        id: scroll

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: toolbar.bottom
        anchors.bottom: parent.bottom
        maximumWidth: width
        padding: root.contentPadding

        ColumnLayout {
            id: form

            width: parent.width
            height: Math.max(implicitHeight, scroll.height - 2 * root.contentPadding)
            spacing: root.compact ? 14 : Theme.spaceL

            ComposerHeader {
                Layout.fillWidth: true
                title: root.model.title
                subtitle: root.model.subtitle
                symbol: root.model.systemImage
                tint: root.model.takesTime ? Theme.alert : Theme.accent
            }

            AmountSection {
                Layout.fillWidth: true
                model: root.model
            }

            GridLayout {
                Layout.fillWidth: true
                columns: root.compact || !root.model.takesTime ? 1 : 2
                columnSpacing: 14
                rowSpacing: root.compact ? Theme.spaceM : 6

                CategorySection {
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    visible: root.model.takesTime
                    model: root.model
                }

                DatePicker {
                    objectName: "transaction.date"
                    Layout.fillWidth: true
                    Layout.preferredWidth: 1
                    Layout.alignment: Qt.AlignBottom
                    model: root.model.date
                    Accessible.name: qsTr("Transaction date")
                }
            }

            NoteSection {
                Layout.fillWidth: true
                model: root.model
            }

            // What room is left stands above the button.
            Item {
                Layout.fillWidth: true
                Layout.fillHeight: true
                implicitHeight: save.implicitHeight

                ProminentButton {
                    id: save

                    objectName: "transaction.save"
                    anchors.left: parent.left
                    anchors.right: parent.right
                    anchors.bottom: parent.bottom
                    text: root.model.saveTitle
                    symbol: root.model.systemImage
                    enabled: root.model.canSave
                    onClicked: root.model.save()
                }
            }
        }
    }
}
