pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Templates as T
import Quillmere.controls
import Quillmere.history
import Quillmere.theme

// The rows of the screen, and the keys and clicks that open, select and delete them. One stop for Tab,
// which is the current row.
ListView {
    id: root

    required property HistoryListModel items

    readonly property int sideMargin: Math.max(Theme.spaceXL, Math.round((width - 780) / 2))

    property int lastCount: 0

    signal opened(row: int)
    signal deletionRequested(row: int)
    signal menuRequested(row: int, position: point)

    function takeFocusBack(): void {
        const focused = Window.activeFocusItem;
        const isNobody = focused === null || focused.parent === null || !focused.visible;
        if (isNobody || focused === root || focused === root.parent)
            focusCurrent();
    }

    // The screen has the keyboard where there are no rows.
    function focusCurrent(): void {
        if (visible && currentItem !== null)
            (currentItem as HistoryRow).takeKeyboard();
        else
            root.parent.forceActiveFocus(Qt.OtherFocusReason);
    }

    // The row that had the keyboard may be among them.
    function onRowsGone(): void {
        if (visible && currentItem?.activeFocus)
            focusCurrent();
        else
            takeFocusBack();
    }

    // What a press of a row means with these keys held.
    function press(row: int, modifiers: int): void {
        const origin = currentIndex;
        currentIndex = row;
        if (modifiers & Qt.ShiftModifier)
            items.selectTo(row, origin);
        else if (modifiers & Qt.ControlModifier)
            items.toggle(row);
        else
            root.opened(row);
    }

    // Moves to a row as an arrow key does: with Shift it selects on the way, with Ctrl it leaves the
    // selection as it is.
    function move(row: int, modifiers: int): void {
        const target = Math.max(0, Math.min(count - 1, row));
        const origin = currentIndex;
        currentIndex = target;
        if (target === 0)
            positionViewAtBeginning();
        else
            positionViewAtIndex(target, ListView.Contain);
        focusCurrent();
        if (modifiers & Qt.ShiftModifier)
            items.selectTo(target, origin);
        else if (!(modifiers & Qt.ControlModifier))
            items.clearSelection();
    }

    // The last row in sight in a direction, or that of the next page from there.
    function pageEnd(direction: int): int {
        const edge = () => {
            forceLayout(); // Qt 6.8 puts rows in their places later
            return indexAt(width / 2, direction > 0 ? contentY + height - bottomMargin - 1
                                                    : contentY + topMargin);
        };
        positionViewAtIndex(currentIndex, ListView.Contain);
        if (edge() === currentIndex)
            positionViewAtIndex(currentIndex, direction > 0 ? ListView.Beginning : ListView.End);
        const row = edge();
        return row >= 0 ? row : direction > 0 ? count - 1 : 0;
    }

    function targetOf(key: int): int {
        switch (key) {
        case Qt.Key_Up:
            return currentIndex - 1;
        case Qt.Key_Down:
            return currentIndex + 1;
        case Qt.Key_PageUp:
            return pageEnd(-1);
        case Qt.Key_PageDown:
            return pageEnd(1);
        case Qt.Key_Home:
            return 0;
        case Qt.Key_End:
            return count - 1;
        default:
            return -2;
        }
    }

    function openMenu(): void {
        menuRequested(currentIndex, Qt.point(currentItem.x + currentItem.width / 2,
                                             currentItem.y - contentY + currentItem.height / 2));
    }

    // Keys that change something do it once, however long they are held.
    function act(event: KeyEvent): bool {
        const control = event.modifiers & Qt.ControlModifier;
        switch (event.key) {
        case Qt.Key_Return:
        case Qt.Key_Enter:
        case Qt.Key_Space:
            if (!event.isAutoRepeat)
                press(currentIndex, event.key === Qt.Key_Space ? event.modifiers : Qt.NoModifier);
            return true;
        case Qt.Key_Delete:
            if (!event.isAutoRepeat)
                deletionRequested(currentIndex);
            return true;
        case Qt.Key_A:
            if (control)
                items.selectAll();
            return control;
        case Qt.Key_Escape:
            items.clearSelection();
            return true;
        case Qt.Key_Menu:
            openMenu();
            return true;
        case Qt.Key_F10:
            if (event.modifiers & Qt.ShiftModifier)
                openMenu();
            return event.modifiers & Qt.ShiftModifier;
        default:
            return false;
        }
    }

    model: root.items
    topMargin: 10
    bottomMargin: 10
    boundsBehavior: Flickable.StopAtBounds
    clip: true
    reuseItems: true
    // Qt warns of a row that it makes in advance when that goes together with all others.
    cacheBuffer: 0
    keyNavigationEnabled: false
    highlightFollowsCurrentItem: false
    T.ScrollBar.vertical: ThinScrollBar {}
    Accessible.role: Accessible.List
    onCountChanged: {
        if (count < lastCount)
            Qt.callLater(onRowsGone); // qmllint disable
        lastCount = count;
        if (currentIndex < 0 && count > 0)
            currentIndex = 0;
    }
    Keys.onPressed: event => {
        if (count === 0 || currentIndex < 0)
            return;
        const target = targetOf(event.key);
        if (target > -2)
            move(target, event.modifiers);
        event.accepted = target > -2 || act(event);
    }

    ReadingOrder {
        id: order

        container: root.contentItem
    }

    delegate: HistoryRow {
        id: row

        x: root.sideMargin
        width: root.width - 2 * root.sideMargin
        keyHandler: root
        onYChanged: order.schedule()
        onPressed: modifiers => root.press(row.index, modifiers)
        onMenuRequested: position => root.menuRequested(row.index, row.mapToItem(root, position.x, position.y))
    }
}
