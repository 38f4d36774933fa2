import QtQuick
import QtTest
import Quillmere.test
import Quillmere.menubar
import Quillmere.theme

Item {
    id: window

    width: 400
    height: 760

    Component {
        id: view

        MenuBarRootView {
            width: implicitWidth
            height: implicitHeight
            focus: true
            model: Fixture.model
        }
    }

    SignalSpy {
        id: spy
    }

    TestCase {
        name: "MenuBarRootView"
        when: windowShown

        property Item panel

        function initTestCase() {
            Theme.reducedMotion = true;
        }

        function open(properties) {
            panel = createTemporaryObject(view, window, properties);
            panel.forceActiveFocus();
            spy.clear();
            spy.target = panel;
        }

        function openSetUp(properties) {
            open(properties);
            tryVerify(() => Fixture.isPrepared());
            Fixture.completeSetup();
            panel.forceActiveFocus();
        }

        function cleanup() {
            panel.destroy();
            Fixture.model.timeBank.closeComposer();
            Fixture.removeAll();
        }

        function part(name) {
            const found = findChild(panel, name);
            verify(found, name);
            return found;
        }

        function named(item, name) {
            if (item.visible && item.Accessible.name === name)
                return item;
            for (let i = 0; i < item.children.length; ++i) {
                const found = named(item.children[i], name);
                if (found)
                    return found;
            }
            return null;
        }

        function focusedName() {
            const item = window.Window.activeFocusItem;
            return item.objectName !== "" ? item.objectName : item.Accessible.name;
        }

        function frame(item) {
            return item.mapToItem(panel, 0, 0, item.width, item.height);
        }

        function test_leadsToSetupBeforeThereIsATimeBank() {
            open();
            const setup = part("menuBar.setup");
            compare(setup.width, 330);
            verify(named(setup, "Finish setting up Quillmere"));
            verify(named(setup, "Open the app once to prepare your manual time bank."));
            compare(focusedName(), "Open setup");
            spy.signalName = "openAppChosen";
            keyClick(Qt.Key_Return);
            compare(spy.count, 1);
        }

        function test_saysWhatItShows() {
            openSetUp();
            compare(panel.width, 350);
            const balance = named(panel, "Time bank balance");
            compare(balance.Accessible.role, Accessible.StaticText);
            compare(balance.Accessible.description, "plus 0 hours, 0 minutes");
            for (const [name, title] of [["menuBar.action.add", "Add time"],
                                         ["menuBar.action.take", "Take flex time"]]) {
                const card = part(name);
                compare(card.Accessible.role, Accessible.Button);
                compare(card.Accessible.name, title);
                compare(card.Accessible.description, "Opens the time entry form");
                verify(card.height >= 82);
            }
            compare(part("menuBar.action.add").width, part("menuBar.action.take").width);
        }

        function test_isWalkedWithTheKeyboard() {
            openSetUp();
            const order = ["menuBar.action.add", "menuBar.action.take", "Open app", "Quit"];
            for (const name of order) {
                compare(focusedName(), name);
                keyClick(Qt.Key_Tab);
            }
            keyClick(Qt.Key_Backtab);
            spy.signalName = "quitChosen";
            keyClick(Qt.Key_Space);
            compare(spy.count, 1);
            keyClick(Qt.Key_Backtab);
            spy.clear();
            spy.signalName = "openAppChosen";
            keyClick(Qt.Key_Return);
            compare(spy.count, 1);
        }

        function test_recordsAChangeAndReturnsToItsCard() {
            openSetUp();
            keyClick(Qt.Key_Tab);
            keyClick(Qt.Key_Return);
            const composer = part("transaction.composer");
            compare(composer.width, 360);
            compare(composer.Accessible.name, "Take flex time");
            compare(focusedName(), "transaction.customHours");
            keyClick(Qt.Key_2);
            keyClick(Qt.Key_Return);
            tryVerify(() => !findChild(panel, "transaction.composer"));
            compare(named(panel, "Time bank balance").Accessible.description,
                    "minus 2 hours, 0 minutes");
            compare(focusedName(), "menuBar.action.take");
            verify(part("menuBar.action.take").visualFocus);
        }

        function test_closesTheFormAtEscapeWhereverTheKeyboardIs() {
            openSetUp();
            for (const leavesTheForm of [false, true]) {
                keyClick(Qt.Key_Return);
                verify(Fixture.model.timeBank.isAdding);
                if (leavesTheForm)
                    part("menuBar.action.take").forceActiveFocus();
                keyClick(Qt.Key_Escape);
                verify(!Fixture.model.timeBank.isAdding);
                compare(focusedName(), "menuBar.action.add");
            }
        }

        function test_makesRoomForTheForm_data() {
            return [
                { tag: "under the cards", opensUpwards: false, maximumHeight: 800, cards: true },
                { tag: "over the cards", opensUpwards: true, maximumHeight: 800, cards: true },
                { tag: "in place of them", opensUpwards: false, maximumHeight: 388, cards: false },
            ];
        }

        function test_makesRoomForTheForm(row) {
            openSetUp({ opensUpwards: row.opensUpwards, maximumHeight: row.maximumHeight });
            mouseClick(part("menuBar.action.take"));
            const form = frame(part("transaction.composer"));
            const card = part("menuBar.action.take");
            compare(form.width, 360);
            verify(form.height >= 330);
            verify(form.left > 0 && form.right < panel.width, "the form stands inside");
            verify(form.top > 0 && form.bottom < panel.height, "the form stands inside");
            verify(panel.height <= row.maximumHeight);
            compare(card.visible, row.cards);
            if (row.cards && row.opensUpwards)
                verify(form.bottom < frame(card).top);
            else if (row.cards)
                verify(form.top > frame(card).bottom);
        }

        function test_showsAFormThatWasAskedForBeforeItAppeared() {
            Fixture.model.timeBank.addTime();
            openSetUp();
            compare(part("transaction.composer").Accessible.name, "Add time");
            compare(focusedName(), "transaction.customHours");
        }
    }
}
