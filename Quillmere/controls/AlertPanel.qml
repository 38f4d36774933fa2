import QtQuick
import QtQuick.Layouts
import Quillmere.controls

// A modal alert above everything else, with one button. `dismissed` follows the button, Enter and
// Escape.
AlertSurface {
    id: root

    property string buttonText: qsTr("OK")

    signal dismissed()

    onOpened: button.forceActiveFocus(Qt.TabFocusReason)
    onClosed: root.dismissed()

    ProminentButton {
        id: button

        Layout.fillWidth: true
        text: root.buttonText
        onClicked: root.close()
    }
}
