import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Quillmere.controls
import Quillmere.shell
import Quillmere.theme

// Tells that long work is under way. Work that writes holds the window's input back from its first
// moment, that of assistive technology too, for which nothing in the window can be used; the panel
// itself comes into sight when the work takes noticeably long.
ModalPanel {
    id: root

    required property BackgroundWork work

    readonly property T.ApplicationWindow window: root.parent?.Window.window as T.ApplicationWindow

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: Theme.spaceXL
    z: 1
    enter: null
    exit: null
    closePolicy: T.Popup.NoAutoClose
    visible: root.work.isHoldingInput || root.work.isShown

    T.Overlay.modal: Rectangle {
        color: root.work.isShown ? Theme.scrim : "transparent" // qmllint disable unqualified

        Behavior on color { FadeMotion {} }
    }

    // The window's content, and the sheets over it.
    Binding {
        target: root.window?.contentItem ?? null
        property: "enabled"
        value: !root.opened
    }

    Binding {
        target: root.parent
        property: "enabled"
        value: !root.opened
    }

    background.opacity: root.work.isShown ? 1 : 0

    RowLayout {
        opacity: root.work.isShown ? 1 : 0
        spacing: Theme.spaceL

        ProgressRing {
            Accessible.name: root.work.title
        }

        PlainText {
            Layout.fillWidth: true
            text: root.work.title
            font: Theme.headline
            wrapMode: Text.Wrap
        }
    }
}
