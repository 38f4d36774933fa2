import QtQuick
import QtQuick.Templates as T
import Quillmere.controls
import Quillmere.theme

// A page that scrolls vertically: its content stands in the middle, at most `maximumWidth` wide, and
// what the keyboard reaches is scrolled into sight.
Flickable {
    id: root

    default property alias content: column.data
    property real maximumWidth: 680
    property real padding: Theme.spaceXL
    property real topPadding: padding
    property real bottomPadding: padding
    property real spacing: Theme.spaceL
    readonly property Item focused: Window.activeFocusItem

    function reveal(item: Item): void {
        let ancestor = item;
        while (ancestor && ancestor !== column)
            ancestor = ancestor.parent;
        if (!ancestor || item === column)
            return;
        const top = item.mapToItem(contentItem, 0, 0).y;
        const margin = Theme.spaceM;
        if (top - margin < contentY)
            contentY = Math.max(0, top - margin);
        else if (top + item.height + margin > contentY + height)
            contentY = Math.min(Math.max(0, contentHeight - height), top + item.height + margin - height);
    }

    contentWidth: width
    contentHeight: column.height + topPadding + bottomPadding
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    onFocusedChanged: root.reveal(root.focused)
    T.ScrollBar.vertical: ThinScrollBar {}

    Column {
        id: column

        x: Math.round((root.width - width) / 2)
        y: root.topPadding
        width: Math.min(root.maximumWidth, root.width - 2 * root.padding)
        spacing: root.spacing
    }
}
