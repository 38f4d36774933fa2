import QtQuick
import Quillmere.controls

// A row that is on or off; a press anywhere in it changes that. `identifier` is the switch's.
FormRow {
    id: root

    property alias identifier: control.objectName
    property alias on: control.on

    signal toggled()

    pressable: true
    Accessible.ignored: true
    onPressed: {
        control.forceActiveFocus(Qt.MouseFocusReason);
        root.toggled();
    }

    ToggleSwitch {
        id: control

        text: root.text
        onClicked: root.toggled()
    }
}
