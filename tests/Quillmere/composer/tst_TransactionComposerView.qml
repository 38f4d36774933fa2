import QtQuick
import QtTest
import Quillmere.test
import Quillmere.composer
import Quillmere.controls
import Quillmere.theme

Item {
    id: window

    width: 780
    height: 560

    Component {
        id: sheet

        Sheet {
            id: shown

            property TransactionComposerViewModel model
            readonly property alias form: form

            onClosed: model = null

            TransactionComposerView {
                id: form

                focus: true
                model: shown.model
            }
        }
    }

    TestCase {
        name: "TransactionComposerView"
        when: windowShown

        property Sheet shown
        property TransactionComposerView form

        function initTestCase() {
            Theme.reducedMotion = true;
        }

        function open(takesTime) {
            shown = createTemporaryObject(sheet, window, { model: Fixture.open(takesTime) });
            shown.open();
            tryCompare(shown, "opened", true);
            form = shown.form;
        }

        function cleanup() {
            Fixture.setLocked(false);
        }

        function part(name) {
            const found = findChild(form, name);
            verify(found, name);
            return found;
        }

        function focusedName() {
            const item = window.Window.activeFocusItem;
            return item.objectName !== "" ? item.objectName : (item as BorderedButton).text;
        }

        function test_opensWithTheAmountSelected() {
            open(true);
            const amount = part("transaction.customHours");
            verify(amount.activeFocus);
            compare(amount.selectedText, "1");
            keyClick("2");
            compare(amount.text, "2");
            compare(form.model.hoursText, "2");
        }

        function test_carriesItsIdentifiersAndNames_data() {
            return [
                { tag: "transaction.composer", name: "Take flex time" },
                { tag: "transaction.amount.decrease", name: "Decrease amount by one hour", description: "1" },
                { tag: "transaction.customHours", name: "Amount in hours" },
                { tag: "transaction.amount.increase", name: "Increase amount by one hour", description: "1" },
                { tag: "transaction.preset.1Hours", name: "Set amount to 1 hours" },
                { tag: "transaction.preset.2Hours", name: "Set amount to 2 hours" },
                { tag: "transaction.preset.4Hours", name: "Set amount to 4 hours" },
                { tag: "transaction.preset.8Hours", name: "Set amount to 8 hours" },
                { tag: "transaction.category", name: "Category" },
                { tag: "transaction.date", name: "Transaction date", description: "Sunday, November 22, 2026" },
                { tag: "transaction.note", name: "Note (recommended)" },
                { tag: "transaction.save", name: "Save flex time" }
            ];
        }

        function test_carriesItsIdentifiersAndNames(row) {
            open(true);
            const item = form.objectName === row.tag ? form : part(row.tag);
            compare(item.Accessible.name, row.name);
            if (row.description)
                compare(item.Accessible.description, row.description);
        }

        function test_tabFollowsReadingOrder_data() {
            const amount = ["transaction.customHours", "transaction.amount.increase",
                "transaction.preset.1Hours", "transaction.preset.2Hours",
                "transaction.preset.4Hours", "transaction.preset.8Hours"];
            const rest = ["transaction.date", "transaction.note", "transaction.save", "Cancel",
                "transaction.amount.decrease"];
            return [
                { tag: "take", takesTime: true, order: [...amount, "transaction.category", ...rest] },
                { tag: "add", takesTime: false, order: [...amount, ...rest] }
            ];
        }

        function test_tabFollowsReadingOrder(row) {
            open(row.takesTime);
            for (const name of row.order) {
                compare(focusedName(), name);
                keyClick(Qt.Key_Tab);
            }
            compare(focusedName(), row.order[0]);
            keyClick(Qt.Key_Backtab, Qt.ShiftModifier);
            compare(focusedName(), row.order[row.order.length - 1]);
        }

        function test_keysSaveAndClose_data() {
            return [
                { tag: "Enter in the amount", item: "transaction.customHours", key: Qt.Key_Return, minutes: -60 },
                { tag: "keypad Enter", item: "transaction.customHours", key: Qt.Key_Enter, minutes: -60 },
                { tag: "Enter in the note", item: "transaction.note", key: Qt.Key_Return, minutes: 0 },
                { tag: "Ctrl+Enter in the note", item: "transaction.note", key: Qt.Key_Return,
                  modifiers: Qt.ControlModifier, minutes: -60 },
                { tag: "Enter on the button", item: "transaction.save", key: Qt.Key_Return, minutes: -60 },
                { tag: "Space on a preset", item: "transaction.preset.4Hours", key: Qt.Key_Space, minutes: 0 },
                { tag: "Escape", item: "transaction.note", key: Qt.Key_Escape, minutes: 0, finished: 1 }
            ];
        }

        function test_keysSaveAndClose(row) {
            open(true);
            part(row.item).forceActiveFocus(Qt.TabFocusReason);
            const before = Fixture.storedCount();
            keyClick(row.key, row.modifiers ?? Qt.NoModifier);
            compare(Fixture.savedMinutes, row.minutes);
            compare(Fixture.finishedCount, row.finished ?? (row.minutes ? 1 : 0));
            compare(Fixture.storedCount(), before + (row.minutes ? 1 : 0));
        }

        function test_buttonsSetTheAmount() {
            open(false);
            mouseClick(part("transaction.preset.8Hours"));
            mouseClick(part("transaction.amount.increase"));
            compare(part("transaction.customHours").text, "9");
            mouseClick(part("transaction.amount.decrease"));
            compare(part("transaction.customHours").text, "8");
            compare(part("transaction.amount.decrease").Accessible.description, "8");
        }

        function test_saysWhatIsWrongAndDisablesSaving() {
            open(true);
            keyClick("x");
            verify(!part("transaction.save").enabled);
            fuzzyCompare(part("transaction.save").opacity, 0.42, 0.001);
            keyClick(Qt.Key_Return);
            compare(Fixture.savedMinutes, 0);
        }

        function test_aFailedSaveKeepsTheForm() {
            open(true);
            keyClick("3");
            const note = part("transaction.note");
            note.insert(0, "Dentist");
            const before = Fixture.storedCount();
            Fixture.setLocked(true);
            mouseClick(part("transaction.save"));
            compare(Fixture.issueTitle(), "Couldn't save the time change");
            compare(Fixture.finishedCount, 0);
            verify(shown.opened);
            compare(part("transaction.customHours").text, "3");
            compare(note.text, "Dentist");
            compare(Fixture.storedCount(), before);
        }

        function test_picksACategoryByKeyboard() {
            open(true);
            const category = part("transaction.category");
            category.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Space);
            tryCompare(category.popup, "opened", true);
            keyClick(Qt.Key_Up);
            keyClick(Qt.Key_Return);
            tryCompare(category.popup, "visible", false);
            compare(category.displayText, "Long lunch");
            compare(form.model.categoryIndex, 2);
            verify(shown.opened);
        }

        function test_picksADayByKeyboard() {
            open(true);
            const date = part("transaction.date");
            date.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Return);
            tryCompare(date, "opened", true);
            keyClick(Qt.Key_Right);
            keyClick(Qt.Key_PageUp);
            const day = window.Window.activeFocusItem;
            compare(day.Accessible.name, "Thursday, October 22, 2026");
            compare(day.x, 4 * day.width, "under its weekday");
            keyClick(Qt.Key_Left);
            keyClick(Qt.Key_Return);
            tryCompare(date, "opened", false);
            compare(date.text, "Wed, Oct 21, 2026");
            tryCompare(date, "visualFocus", true);
            keyClick(Qt.Key_Space);
            tryCompare(date, "opened", true);
            keyClick(Qt.Key_Escape);
            tryCompare(date, "opened", false);
            verify(shown.opened, "Escape closes the popover only");
            compare(Fixture.finishedCount, 0);
        }

        function test_theCalendarLeavesItsFieldInSight() {
            open(true);
            const date = part("transaction.date");
            keyClick(Qt.Key_Tab);
            date.clicked();
            tryCompare(date, "opened", true);
            const panel = window.Window.activeFocusItem.parent.parent.parent;
            const field = date.mapToItem(null, 0, 0).y;
            const top = panel.mapToItem(null, 0, 0).y;
            verify(top + panel.height < field || top > field + date.height);
            verify(top > 0 && top + panel.height < window.height);
        }

        function test_theNoteHolds280Characters() {
            open(true);
            const note = part("transaction.note");
            const full = "n".repeat(280);
            note.text = "";
            note.insert(0, full + "xyz");
            compare(note.text, full);
            note.cursorPosition = 100;
            note.forceActiveFocus();
            keyClick("x");
            compare(note.text, full, "typed");
            compare(note.cursorPosition, 100);
            note.remove(0, 1);
            keyClick("x");
            compare(note.text.length, 280);
            compare(form.model.note.text, note.text);
        }

        function test_theNoteGrowsToFourLines() {
            open(false);
            const editor = part("transaction.note");
            let field = editor;
            while (field.maximumLines !== 4)
                field = field.parent;
            const heights = [1, 2, 3, 4, 6].map(lines => {
                editor.text = "a" + "\na".repeat(lines - 1);
                return field.implicitHeight;
            });
            compare(heights[0], heights[1]);
            verify(heights[1] < heights[2] && heights[2] < heights[3]);
            compare(heights[3], heights[4]);
        }

        function test_hasItsGivenSizes() {
            open(true);
            compare(form.implicitWidth, 520);
            verify(form.implicitHeight >= 500);
            form.compact = true;
            compare(form.implicitWidth, 360);
            verify(form.implicitHeight >= 330);
        }
    }
}
