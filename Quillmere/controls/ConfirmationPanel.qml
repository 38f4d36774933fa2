import QtQuick
import QtQuick.Layouts
import Quillmere.controls

// Asks before something that cannot be taken back, while `shown`. Each time ends with `confirmed` or,
// after "Cancel" and Escape, with `dismissed`, once the panel is gone and the focus is back; the host
// then takes `shown` back. Whoever presses Enter without reading has cancelled.
AlertSurface {
    id: root

    property bool shown: false
    property string confirmText: ""
    property string cancelText: qsTr("Cancel")
    readonly property alias confirmButton: confirm

    property bool isConfirmed: false

    signal confirmed()
    signal dismissed()

    onShownChanged: {
        if (root.shown)
            root.open();
        else
            root.close();
    }
    onAboutToShow: {
        root.isConfirmed = false;
        cancel.focus = true;
    }
    onOpened: {
        if (!confirm.activeFocus)
            cancel.forceActiveFocus(Qt.TabFocusReason);
    }
    onClosed: {
        if (root.isConfirmed)
            root.confirmed();
        else
            root.dismissed();
    }

    BorderedButton {
        id: cancel

        focus: true
        Layout.fillWidth: true
        Layout.preferredWidth: 1
        Layout.preferredHeight: confirm.implicitHeight
        text: root.cancelText
        font: confirm.font
        onClicked: root.close()
    }

    ProminentButton {
        id: confirm

        Layout.fillWidth: true
        Layout.preferredWidth: 1
        destructive: true
        text: root.confirmText
        onClicked: {
            root.isConfirmed = true;
            root.close();
        }
    }
}
