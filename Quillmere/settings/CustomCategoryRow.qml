import QtQuick
import Quillmere.controls
import Quillmere.theme

// A category of the user's own, which can be removed.
FormRow {
    id: root

    signal removeChosen()

    symbol: "tag"
    overhang: 7

    IconButton {
        objectName: "settings.customAdjustmentCategory.remove"
        text: qsTr("Remove %1").arg(root.text)
        symbol: "trash"
        color: Theme.alert
        onClicked: root.removeChosen()
    }
}
