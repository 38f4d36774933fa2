import QtQuick
import QtTest
import Quillmere.test
import Quillmere.editor
import Quillmere.theme

Item {
    id: window

    width: 780
    height: 560

    Component {
        id: view

        AdjustmentEditorView {
            anchors.centerIn: parent
            height: Math.min(implicitHeight, window.height)
            focus: true
        }
    }

    TestCase {
        name: "AdjustmentEditorView"
        when: windowShown

        property AdjustmentEditorView form

        function initTestCase() {
            Theme.reducedMotion = true;
        }

        function open(minutes) {
            form = createTemporaryObject(view, window, { model: Fixture.open(minutes) });
            form.forceActiveFocus();
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

        function tabTo(name) {
            for (let i = 0; i < 15; ++i) {
                if (window.Window.activeFocusItem.Accessible.name === name)
                    return window.Window.activeFocusItem;
                keyClick(Qt.Key_Tab);
            }
            fail("Tab never reaches " + name);
        }

        function test_isWalkedInReadingOrder() {
            open(90);
            const order = ["Hours: 1", "Minutes: 30", "Optional note", "Delete activity", "Cancel", "Save",
                "Adjustment", "Date", "Add"];
            for (const name of order) {
                compare(window.Window.activeFocusItem.Accessible.name, name);
                keyClick(Qt.Key_Tab);
            }
            compare(window.Window.activeFocusItem.Accessible.name, order[0]);
        }

        function test_keysStepTheAmount_data() {
            return [
                { tag: "up", name: "Hours: 1", keys: [Qt.Key_Up, Qt.Key_Right], minutes: 210 },
                { tag: "down to nothing", name: "Hours: 1", keys: [Qt.Key_Down, Qt.Key_Down], minutes: 30 },
                { tag: "as far as it goes", name: "Hours: 1", keys: [Qt.Key_End], minutes: 1440 },
                { tag: "minutes by five", name: "Minutes: 30", keys: [Qt.Key_Plus, Qt.Key_Minus, Qt.Key_Minus], minutes: 85 },
                { tag: "minutes to their end", name: "Minutes: 30", keys: [Qt.Key_End, Qt.Key_Up], minutes: 119 }
            ];
        }

        function test_keysStepTheAmount(row) {
            open(90);
            tabTo(row.name);
            row.keys.forEach(key => keyClick(key));
            keyClick(Qt.Key_Return);
            compare(Fixture.finishedCount, 1);
            compare(Fixture.storedMinutes(), row.minutes);
        }

        function test_24HoursLeaveNoMinutes() {
            open(90);
            keyClick(Qt.Key_End);
            verify(!named(form, "Minutes: 0", Accessible.SpinBox).enabled);
        }

        function test_choosesTheDirectionByKeyboard() {
            open(90);
            const picker = findChild(form, "adjustment.direction");
            compare(picker.Accessible.name, "Direction");
            tabTo("Add");
            keyClick(Qt.Key_Right);
            compare(window.Window.activeFocusItem.Accessible.name, "Deduct");
            verify(window.Window.activeFocusItem.checked); // qmllint disable
            keyClick(Qt.Key_Return, Qt.NoModifier);
            form.model.save();
            compare(Fixture.storedMinutes(), -90);
        }

        function test_hidesTheDirectionWhereTheCategorySettlesIt() {
            open(90);
            verify(named(form, "Choose whether to add or deduct the amount below."));
            form.model.categoryIndex = 1;
            verify(!findChild(form, "adjustment.direction").visible);
            verify(named(form, "This category deducts the amount below from your time bank."));
        }

        function test_deletesAfterTheConfirmation() {
            open(90);
            const button = findChild(form, "adjustment.delete");
            compare(button.Accessible.name, "Delete activity");
            button.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Return);
            tryVerify(() => window.Window.activeFocusItem.text === "Cancel");
            keyClick(Qt.Key_Return);
            tryVerify(() => button.activeFocus, 5000, "Enter without reading cancels");
            verify(!Fixture.isDeleted());
            keyClick(Qt.Key_Return);
            tryVerify(() => window.Window.activeFocusItem.text === "Cancel");
            keyClick(Qt.Key_Tab);
            compare(window.Window.activeFocusItem.objectName, "adjustment.confirmDelete");
            keyClick(Qt.Key_Space);
            tryCompare(Fixture, "finishedCount", 1);
            verify(Fixture.isDeleted());
        }

        function test_savesWithControlEnterAndLeavesWithEscape() {
            open(90);
            const note = tabTo("Optional note");
            compare(note.text, "Dentist");
            keyClick(Qt.Key_Return);
            compare(Fixture.finishedCount, 0, "Enter starts a line");
            keyClick(Qt.Key_Return, Qt.ControlModifier);
            compare(Fixture.finishedCount, 1);
            open(90);
            keyClick(Qt.Key_Escape);
            compare(Fixture.finishedCount, 1);
        }

        function test_aNewChangeHasNothingToDelete() {
            open(0);
            compare(form.objectName, "adjustment.editor");
            compare(form.Accessible.name, "Add adjustment");
            verify(!named(form, "Delete activity"));
            const save = named(form, "Save");
            compare(save.Accessible.description, "Saves this balance adjustment");
            keyClick(Qt.Key_Home);
            verify(!save.enabled);
            compare(save.Accessible.description, "Choose a duration before saving");
        }
    }
}
