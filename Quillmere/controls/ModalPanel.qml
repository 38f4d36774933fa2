import QtQuick
import QtQuick.Templates as T
import Quillmere.controls
import Quillmere.theme

// A panel in the middle of a dimmed window, which it keeps from input. Holds the focus until it closes,
// from the start with a ring, and then gives it back. Escape closes it.
T.Popup {
    id: root

    readonly property FocusKeeper keeper: FocusKeeper {}

    parent: T.Overlay.overlay
    x: Math.round((parent.width - width) / 2)
    y: Math.round((parent.height - height) / 2)
    margins: Theme.spaceL
    modal: true
    focus: true
    dim: true
    closePolicy: T.Popup.CloseOnEscape
    onAboutToShow: root.keeper.take(root.parent.Window.activeFocusItem)
    onOpened: {
        const focused = root.parent.Window.activeFocusItem as T.Control;
        if (focused !== null)
            focused.focusReason = Qt.TabFocusReason;
    }
    onClosed: root.keeper.giveBack(root.parent.Window.activeFocusItem)

    T.Overlay.modal: Rectangle {
        color: Theme.scrim

        Behavior on opacity {
            NumberAnimation { duration: Theme.fadeDuration }
        }
    }

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.fadeDuration }
        SpringMotion { property: "scale"; from: Theme.reducedMotion ? 1 : 0.96; to: 1 }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Theme.fadeDuration }
    }

    background: Surface {
        color: Theme.sheet
        borderColor: Theme.hairline
        radius: Theme.sheetRadius
        shadowColor: Theme.deepShadow
        shadowBlur: 48
        shadowOffset: 14
    }
}
