import QtQuick
import QtTest
import Quillmere.controls
import Quillmere.theme

Item {
    id: window

    width: 600
    height: 400

    MenuPicker {
        id: picker

        model: ListModel {}
    }

    TestCase {
        name: "MenuPicker"
        when: windowShown

        readonly property ListView list: picker.popup.contentItem as ListView

        function initTestCase() {
            Theme.reducedMotion = true;
            for (let i = 0; i < 30; ++i)
                picker.model.append({ value: i, title: `Choice ${i}`, symbol: "" });
            picker.model.append({ value: 30, title: "Reconciliation of everything with everybody", symbol: "" });
        }

        function isInSight(row) {
            const line = list.itemAtIndex(row);
            return line !== null && line.y >= list.contentY && line.y + line.height <= list.contentY + list.height;
        }

        function test_showsTheChoiceAndWhatIsAboveIt() {
            picker.currentIndex = 3;
            picker.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Space);
            tryCompare(picker.popup, "opened", true);
            verify(isInSight(0) && isInSight(3));
            for (const [key, row] of [[Qt.Key_End, 30], [Qt.Key_Home, 0], [Qt.Key_Down, 1]]) {
                keyClick(key);
                compare(picker.highlightedIndex, row);
                verify(isInSight(row), `row ${row}`);
            }
            verify(picker.popup.width > picker.width, "there is room for the widest");
            keyClick(Qt.Key_Escape);
        }
    }
}
