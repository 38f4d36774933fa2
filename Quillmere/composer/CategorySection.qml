import QtQuick
import QtQuick.Layouts
import Quillmere.composer
import Quillmere.controls

// What the time was taken for.
ColumnLayout {
    id: root

    required property TransactionComposerViewModel model

    spacing: 6

    FieldLabel {
        text: qsTr("Category")
    }

    MenuPicker {
        objectName: "transaction.category"
        Layout.fillWidth: true
        model: root.model.categories
        currentIndex: root.model.categoryIndex
        Accessible.name: qsTr("Category")
        onActivated: index => root.model.categoryIndex = index
    }
}
