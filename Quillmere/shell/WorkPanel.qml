import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Quillmere.controls
import Quillmere.shell
import Quillmere.theme

// Tells that long work is under way. Work that writes holds the window's input back from its first
// moment; the panel itself comes into sight when the work takes noticeably long.
T.Popup {
    id: root

    required property BackgroundWork work

    readonly property FocusKeeper keeper: FocusKeeper {}

    parent: T.Overlay.overlay
    x: Math.round((parent.width - width) / 2)
    y: Math.round((parent.height - height) / 2)
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    margins: Theme.spaceL
    padding: Theme.spaceXL
    z: 1
    modal: true
    focus: true
    dim: true
    closePolicy: T.Popup.NoAutoClose
    visible: root.work.isHoldingInput || root.work.isShown
    onAboutToShow: root.keeper.take(root.parent.Window.activeFocusItem)
    onClosed: root.keeper.giveBack(root.parent.Window.activeFocusItem)

    T.Overlay.modal: Rectangle {
        color: root.work.isShown ? Theme.scrim : "transparent"

        Behavior on color { FadeMotion {} }
    }

    background: Surface {
        opacity: root.work.isShown ? 1 : 0
        color: Theme.sheet
        borderColor: Theme.hairline
        radius: Theme.sheetRadius
        shadowColor: Theme.deepShadow
        shadowBlur: 48
        shadowOffset: 14
    }

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
