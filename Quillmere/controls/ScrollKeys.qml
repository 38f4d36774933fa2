import QtQuick

// Lets a page scroll by the keyboard where nothing in it wants the key: `Keys.forwardTo: [scrollKeys]`.
Item {
    id: root

    required property Flickable page

    readonly property real line: 48

    function scroll(distance: real): bool {
        const last = Math.max(0, root.page.contentHeight - root.page.height);
        const target = Math.max(0, Math.min(last, root.page.contentY + distance));
        const moved = target !== root.page.contentY;
        root.page.contentY = target;
        return moved;
    }

    function distanceOf(key: int): real {
        switch (key) {
        case Qt.Key_Up:
            return -root.line;
        case Qt.Key_Down:
            return root.line;
        case Qt.Key_PageUp:
            return root.line - root.page.height;
        case Qt.Key_PageDown:
            return root.page.height - root.line;
        case Qt.Key_Home:
            return -root.page.contentHeight;
        case Qt.Key_End:
            return root.page.contentHeight;
        default:
            return 0;
        }
    }

    Keys.onPressed: event => event.accepted = root.scroll(root.distanceOf(event.key))
}
