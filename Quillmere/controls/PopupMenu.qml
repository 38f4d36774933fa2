import QtQuick
import QtQuick.Templates as T
import Quillmere.controls
import Quillmere.theme

// A menu of PopupMenuItems under the control that opens it.
T.Menu {
    id: root

    readonly property FocusKeeper keeper: FocusKeeper {}
    // The width of the widest item.
    property real widest: 0

    // Opens it under `button`, ending where that ends.
    function openUnder(button: Item): void {
        measure();
        popup(button, button.width - implicitWidth, button.height + Theme.spaceXS);
    }

    function measure(): void {
        let width = 0;
        for (let i = 0; i < count; ++i)
            width = Math.max(width, itemAt(i).implicitWidth);
        widest = width;
    }

    implicitWidth: Math.max(160, implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: contentHeight + topPadding + bottomPadding
    padding: 5
    margins: 6
    overlap: 1
    delegate: PopupMenuItem {}

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.fadeDuration }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Theme.fadeDuration }
    }

    background: PopoverSurface {}

    contentItem: ListView {
        implicitWidth: root.widest
        implicitHeight: contentHeight
        model: root.contentModel
        interactive: contentHeight > height
        clip: true
        currentIndex: root.currentIndex
        T.ScrollBar.vertical: ThinScrollBar {}
    }

    onClosed: root.keeper.giveBack(root.parent.Window.activeFocusItem)
    onAboutToShow: {
        root.keeper.take(root.parent.Window.activeFocusItem);
        root.measure();
    }
}
