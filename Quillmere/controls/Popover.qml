import QtQuick
import QtQuick.Templates as T
import Quillmere.controls
import Quillmere.theme

// A small panel beside the control that opens it. Takes the focus; Escape and a click outside close
// it and give the focus back.
T.Popup {
    id: root

    readonly property FocusKeeper keeper: FocusKeeper {}

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: Theme.spaceM
    margins: 6
    focus: true

    onAboutToShow: root.keeper.take(root.parent.Window.activeFocusItem)
    onClosed: root.keeper.giveBack(root.parent.Window.activeFocusItem)

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.fadeDuration }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Theme.fadeDuration }
    }

    background: PopoverSurface {}
}
