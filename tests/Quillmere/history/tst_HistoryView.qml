import QtQuick
import QtTest
import Quillmere.test
import Quillmere.history
import Quillmere.theme

Item {
    id: window

    width: 596
    height: 516

    Component {
        id: view

        HistoryView {
            anchors.fill: parent
            focus: true
            model: Fixture.model
        }
    }

    TestCase {
        name: "HistoryView"
        when: windowShown

        property Item screen
        property HistoryList list

        function initTestCase() {
            Theme.reducedMotion = true;
        }

        function init() {
            Fixture.record(40);
            screen = createTemporaryObject(view, window);
            tryVerify(() => !Fixture.model.isLoading);
            list = named(screen, "Activity", Accessible.List);
            screen.forceActiveFocus(Qt.TabFocusReason);
            tryVerify(() => list.currentItem !== null);
        }

        function cleanup() {
            Fixture.model.dismissDeletion();
            Fixture.removeAll();
        }

        function named(item, name, role) {
            if (item.visible && item.Accessible.name === name && (role === undefined || item.Accessible.role === role))
                return item;
            for (let i = 0; i < item.children.length; ++i) {
                const found = named(item.children[i], name, role);
                if (found)
                    return found;
            }
            return null;
        }

        // In front of the screen.
        function shown(name) {
            return named(window.Window.window.contentItem.parent ?? window.Window.window.contentItem, name);
        }

        function row(index) {
            list.positionViewAtIndex(index, ListView.Contain);
            list.forceLayout();
            return findChild(list.itemAtIndex(index), "history.item");
        }

        function selected() {
            const rows = [];
            for (let i = 0; i < list.count; ++i) {
                if (Fixture.model.items.data(Fixture.model.items.index(i, 0), Qt.UserRole + 5))
                    rows.push(i);
            }
            return rows.join(" ");
        }

        function closeEditor() {
            tryVerify(() => findChild(window.Window.window, "adjustment.editor") !== null);
            tryVerify(() => window.Window.activeFocusItem.Accessible.name.startsWith("Hours"));
            verify(findChild(window.Window.window, "adjustment.editor").height < window.height, "scrolls within the window");
            keyClick(Qt.Key_Escape);
            tryVerify(() => Fixture.model.editor === null);
        }

        function test_saysWhatItShows() {
            compare(screen.objectName, "history.screen");
            const first = row(0);
            compare(first.Accessible.name, "change 0, Sun, Nov 22, 3:10 PM, plus 1 hours, 0 minutes");
            compare(first.Accessible.description, "Opens this item for editing");
            verify(!first.Accessible.selected);
            compare(named(screen, "Sunday, Nov 22").Accessible.role, Accessible.Heading);
        }

        function test_opensARow_data() {
            return [
                { tag: "click", act: () => mouseClick(row(3)) },
                { tag: "Enter", act: () => { keyClick(Qt.Key_Down); keyClick(Qt.Key_Return); } },
                { tag: "Space", act: () => keyClick(Qt.Key_Space) },
                { tag: "assistive technology", act: () => row(2).Accessible.pressAction() }
            ];
        }

        function test_opensARow(data) {
            data.act();
            verify(Fixture.model.editor !== null);
            closeEditor();
            compare(selected(), "");
            tryVerify(() => row(list.currentIndex).activeFocus);
        }

        function test_keysMoveAndSelect_data() {
            const shift = Qt.ShiftModifier;
            const control = Qt.ControlModifier;
            return [
                { tag: "down", keys: [[Qt.Key_Down], [Qt.Key_Down]], current: 2, selected: "" },
                { tag: "range", keys: [[Qt.Key_Down], [Qt.Key_Down, shift], [Qt.Key_Down, shift], [Qt.Key_Up, shift]],
                  current: 2, selected: "1 2" },
                { tag: "single ones", keys: [[Qt.Key_Space, control], [Qt.Key_Down, control], [Qt.Key_Down, control],
                  [Qt.Key_Space, control]], current: 2, selected: "0 2" },
                { tag: "a move gives the selection up", keys: [[Qt.Key_A, control], [Qt.Key_Down]], current: 1, selected: "" },
                { tag: "Escape gives it up", keys: [[Qt.Key_A, control], [Qt.Key_Escape]], current: 0, selected: "" },
                { tag: "to the end and back", keys: [[Qt.Key_End], [Qt.Key_Home]], current: 0, selected: "" },
                { tag: "the last", keys: [[Qt.Key_End], [Qt.Key_Down]], current: 39, selected: "" }
            ];
        }

        function test_keysMoveAndSelect(data) {
            for (const [key, modifiers] of data.keys)
                keyClick(key, modifiers ?? Qt.NoModifier);
            compare(list.currentIndex, data.current);
            compare(selected(), data.selected);
            const current = list.currentItem;
            verify(window.Window.activeFocusItem === findChild(current, "history.item"));
            verify(current.y >= list.contentY && current.y + current.height <= list.contentY + list.height, "in sight");
        }

        function test_pagesThroughAllRows() {
            let pages = 0;
            while (list.currentIndex < 39 && pages < 20) {
                const before = list.currentIndex;
                keyClick(Qt.Key_PageDown);
                verify(list.currentIndex > before);
                ++pages;
            }
            verify(pages > 3 && pages < 20, pages);
            keyClick(Qt.Key_PageUp);
            keyClick(Qt.Key_PageUp);
            verify(list.currentIndex < 35);
        }

        function test_clicksSelect() {
            mouseClick(row(1), 5, 5, Qt.LeftButton, Qt.ControlModifier);
            mouseClick(row(3), 5, 5, Qt.LeftButton, Qt.ShiftModifier);
            compare(selected(), "1 2 3");
            verify(row(2).Accessible.selected);
            mouseClick(row(2), 5, 5, Qt.LeftButton, Qt.ControlModifier);
            compare(selected(), "1 3");
            compare(Fixture.model.editor, null);
        }

        function test_deletesAfterAsking() {
            keyClick(Qt.Key_Down, Qt.ShiftModifier);
            keyClick(Qt.Key_Delete);
            tryVerify(() => window.Window.activeFocusItem.text === "Cancel");
            tryVerify(() => window.Window.activeFocusItem.visualFocus, 5000, "and shows it");
            verify(shown("Delete 2 items?"));
            keyClick(Qt.Key_Tab);
            compare(window.Window.activeFocusItem.objectName, "history.confirmDelete");
            compare(window.Window.activeFocusItem.text, "Delete items"); // qmllint disable
            keyClick(Qt.Key_Return);
            tryCompare(list, "count", 38);
            tryVerify(() => row(list.currentIndex).visualFocus, 5000, "the row in their place has the keyboard");
            keyClick(Qt.Key_Delete);
            tryVerify(() => window.Window.activeFocusItem.text === "Cancel");
            keyClick(Qt.Key_Escape);
            tryVerify(() => !Fixture.model.isDeletionPending);
            compare(list.count, 38);
            tryVerify(() => list.activeFocus);
        }

        function test_theMenuDeletesItsOwnRow() {
            keyClick(Qt.Key_A, Qt.ControlModifier);
            mouseClick(row(2), 20, 20, Qt.RightButton);
            tryCompare(findChild(screen, "history.menu"), "opened", true);
            keyClick(Qt.Key_Down);
            keyClick(Qt.Key_Return);
            tryVerify(() => Fixture.model.isDeletionPending);
            compare(Fixture.model.deletionTitle, "Delete this time-bank change?");
        }

        function test_theMenuGoesWhenItsRowMayBeAnother() {
            mouseClick(row(2), 20, 20, Qt.RightButton);
            const menu = findChild(screen, "history.menu");
            tryCompare(menu, "opened", true);
            Fixture.record(1);
            tryCompare(menu, "visible", false);
        }

        function test_saysThatThereIsNothing() {
            verify(!named(screen, "No changes yet"));
            Fixture.removeAll();
            verify(named(screen, "No changes yet"));
            verify(named(screen, "Time you add or subtract appears here."));
            tryVerify(() => screen.activeFocus && window.Window.activeFocusItem.visible, 5000,
                      "somebody who is there has the keyboard");
            keyClick(Qt.Key_Return);
            compare(Fixture.model.editor, null);
            Fixture.record(1);
            tryVerify(() => row(0).activeFocus);
        }
    }
}
