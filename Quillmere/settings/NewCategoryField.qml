import QtQuick
import QtQuick.Layouts
import Quillmere.controls
import Quillmere.settings
import Quillmere.theme

// Where the user types the title of a new category.
FocusScope {
    id: root

    required property AdjustmentTypesViewModel model

    implicitHeight: row.implicitHeight

    RowLayout {
        id: row

        width: parent.width
        spacing: Theme.spaceM

        EntryField {
            id: name

            objectName: "settings.customAdjustmentCategory.name"
            Layout.fillWidth: true
            focus: true
            placeholderText: qsTr("New category")
            text: root.model.newAdjustmentCategoryName
            Accessible.name: qsTr("New category")
            onTextChanged: root.model.newAdjustmentCategoryName = text
            onAccepted: root.model.add()
        }

        BorderedButton {
            objectName: "settings.customAdjustmentCategory.add"
            Layout.fillHeight: true
            text: qsTr("Add")
            enabled: root.model.canAdd
            onClicked: {
                root.model.add();
                name.forceActiveFocus(Qt.OtherFocusReason);
            }
        }
    }
}
