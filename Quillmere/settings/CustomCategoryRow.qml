import QtQuick
import Quillmere.controls
import Quillmere.settings
import Quillmere.theme

// A category of the user's own, which can be removed.
FormRow {
    id: root

    signal removeChosen()

    function focusButton() {
        button.forceActiveFocus(Qt.TabFocusReason);
    }

    symbol: "tag"
    overhang: 7

    IconButton {
        id: button

        objectName: "settings.customAdjustmentCategory.remove"
        text: qsTr("Remove %1").arg(root.text)
        symbol: "trash"
        color: Theme.alert
        onClicked: root.removeChosen()
    }
}
