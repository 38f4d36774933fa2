import QtQuick
import QtQuick.Templates as T
import Quillmere.controls
import Quillmere.theme

// A small panel under the control that opens it, or over it where only there is room. Takes the focus; Escape and a click outside close
// it and give the focus back.
T.Popup {
    id: root

    readonly property FocusKeeper keeper: FocusKeeper {}
    readonly property int gap: Theme.spaceXS

    function place(): void {
        const above = parent.mapToItem(null, 0, 0).y - gap - margins;
        const below = parent.Window.height - above - parent.height - 2 * (gap + margins);
        y = height <= below || above <= below ? parent.height + gap : -height - gap;
    }

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: Theme.spaceM
    margins: 6
    focus: true

    onAboutToShow: {
        root.keeper.take(root.parent.Window.activeFocusItem);
        root.place();
    }
    onClosed: root.keeper.giveBack(root.parent.Window.activeFocusItem)

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.fadeDuration }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Theme.fadeDuration }
    }

    background: PopoverSurface {}
}
