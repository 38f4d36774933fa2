import QtQuick

// Lets a page scroll by the keyboard where nothing in it wants the key: `Keys.forwardTo: [scrollKeys]`.
Item {
    id: root

    required property Flickable page

    readonly property real line: 48

    function within(y: real): real {
        const first = root.page.originY - root.page.topMargin;
        const last = root.page.originY + root.page.contentHeight + root.page.bottomMargin - root.page.height;
        return Math.max(first, Math.min(last, y));
    }

    function scroll(distance: real): bool {
        if (distance === 0)
            return false;
        const before = root.page.contentY;
        root.page.contentY = root.within(before + distance);
        // A list knows how high it is once it has made its last row.
        root.page.contentY = root.within(before + distance);
        return root.page.contentY !== before;
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
            return -Infinity;
        case Qt.Key_End:
            return Infinity;
        default:
            return 0;
        }
    }

    Keys.onPressed: event => event.accepted = root.scroll(root.distanceOf(event.key))
}
