import QtQuick
import QtTest
import Quillmere.test
import Quillmere.dashboard
import Quillmere.theme

Item {
    id: window

    width: 780
    height: 560

    Component {
        id: view

        DashboardView {
            anchors.fill: parent
            focus: true
            model: Fixture.model
        }
    }

    TestCase {
        name: "DashboardView"
        when: windowShown

        property Item screen

        function initTestCase() {
            Theme.reducedMotion = true;
        }

        function init() {
            screen = createTemporaryObject(view, window);
            screen.forceActiveFocus();
            tryVerify(() => Fixture.model.summary.isTodayKnown);
        }

        function cleanup() {
            Fixture.passSeconds(8);
            Fixture.removeAll();
        }

        function part(name) {
            const found = findChild(screen, name);
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

        function test_saysWhatItShows() {
            Fixture.record(-45, 3600, "");
            Fixture.record(150, 90000, "Release weekend");
            compare(screen.objectName, "overview.screen");
            const hero = part("balance.summary");
            const balance = named(hero, "Time bank balance");
            compare(balance.Accessible.description, "plus 1 hours, 45 minutes");
            compare(balance.Accessible.role, Accessible.StaticText);
            compare(balance.text, "+1:45");
            const today = named(hero, "Time-bank change today");
            compare(today.Accessible.description, "minus 0 hours, 45 minutes");
            compare(today.text, "\u22120:45 today");
            const chart = named(hero, "Balance history for the last 30 days");
            compare(chart.Accessible.description, "Current balance plus 1 hours, 45 minutes");
            compare(chart.height, 62);
            compare(chart.values.length, 30);
            verify(named(hero, "BALANCE"));
            compare(named(hero, "Balance history range").text, "Balance history");
        }

        function test_namesTheActions_data() {
            return [
                { tag: "transaction.action.add", name: "Add time", subtitle: "Worked extra", hint: "Opens the time entry form" },
                { tag: "transaction.action.take", name: "Take flex time", subtitle: "Use time from your bank", hint: "Opens the time entry form" },
            ];
        }

        function test_namesTheActions(row) {
            const card = part(row.tag);
            compare(card.Accessible.role, Accessible.Button);
            compare(card.Accessible.name, row.name);
            compare(card.Accessible.description, row.hint);
            compare(card.subtitle, row.subtitle);
            verify(card.height >= 74);
        }

        function test_listsRecentActivityOnlyWhenThereIsSome() {
            verify(!named(screen, "Recent activity"));
            Fixture.record(60, 10, "Standup");
            Fixture.record(-30, 20, "");
            verify(named(screen, "Recent activity"));
            const first = named(screen, "Standup, plus 1 hours, 0 minutes");
            const second = named(screen, "Time subtracted, minus 0 hours, 30 minutes");
            for (const row of [first, second]) {
                compare(row.objectName, "overview.recent.item");
                compare(row.Accessible.role, Accessible.ListItem);
            }
            verify(first.mapToItem(screen, 0, 0).y < second.mapToItem(screen, 0, 0).y);
            const link = named(screen, "See all");
            mouseClick(link);
            compare(Fixture.openedURL, "quillmere://history");
        }

        function test_isReachedByTabInReadingOrder() {
            Fixture.record(60, 10, "");
            const reached = [];
            for (let i = 0; i < 5; ++i) {
                keyClick(Qt.Key_Tab);
                reached.push(focusedName());
            }
            compare(reached, ["Balance history range", "overview.guide", "transaction.action.add", "transaction.action.take", "See all"]);
        }

        function test_choosesARange() {
            const menu = named(screen, "Balance history range");
            menu.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Space);
            tryCompare(menu.menu, "opened", true);
            compare([0, 1, 2, 3].map(i => menu.menu.itemAt(i).text), ["7 days", "14 days", "30 days", "90 days"]);
            compare([0, 1, 2, 3].map(i => menu.menu.itemAt(i).checked), [false, false, true, false]);
            keyClick(Qt.Key_Down);
            keyClick(Qt.Key_Return);
            compare(Fixture.storedRangeDays, 7);
            compare([0, 1, 2, 3].map(i => menu.menu.itemAt(i).checked), [true, false, false, false]);
            verify(named(screen, "Balance history for the last 7 days"));
            Fixture.model.chooseTrendRange(2);
        }

        function test_offersToUndoWhatTheFormSaved() {
            const card = part("transaction.action.add");
            card.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Return);
            tryVerify(() => Fixture.model.activeComposer !== null);
            tryVerify(() => focusedName() === "transaction.customHours");
            keyClick(Qt.Key_2);
            keyClick(Qt.Key_Return);
            tryVerify(() => Fixture.model.activeComposer === null);
            compare(Fixture.model.summary.text, "+2:00");
            const undo = part("transaction.undo");
            compare(undo.Accessible.name, "Undo");
            compare(undo.Accessible.description, "Removes the time-bank change");
            tryCompare(undo, "visible", true);
            verify(named(screen, "Time added"));
            verify(named(screen, "+2:00"));
            mouseClick(undo);
            compare(Fixture.model.summary.text, "+0:00");
            tryCompare(undo, "visible", false);
        }

        function test_keepsTheKeyboardInSightWhenTheOfferGoes_data() {
            return [{ tag: "pressed", go: () => keyClick(Qt.Key_Return) }, { tag: "over", go: () => Fixture.passSeconds(8) }];
        }

        function test_keepsTheKeyboardInSightWhenTheOfferGoes(row) {
            part("transaction.action.take").forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Return);
            tryVerify(() => focusedName() === "transaction.customHours");
            keyClick(Qt.Key_2);
            keyClick(Qt.Key_Return);
            tryVerify(() => Fixture.model.undoOffer.isOffered);
            part("transaction.undo").forceActiveFocus(Qt.TabFocusReason);
            row.go();
            verify(!Fixture.model.undoOffer.isOffered);
            compare(focusedName(), "transaction.action.add");
            verify(part("transaction.action.add").visualFocus);
        }

        function test_closesTheFormWithEscape() {
            mouseClick(part("transaction.action.take"));
            tryVerify(() => focusedName() === "transaction.customHours");
            verify(Fixture.model.activeComposer.takesTime);
            keyClick(Qt.Key_Escape);
            tryVerify(() => Fixture.model.activeComposer === null);
            verify(!Fixture.model.undoOffer.isOffered);
        }

        function test_explainsItself() {
            mouseClick(part("overview.guide"));
            compare(part("overview.guide").Accessible.name, "How Quillmere works");
            tryVerify(() => findChild(window.Window.window, "guide.screen") !== null);
            const guide = findChild(window.Window.window, "guide.screen");
            for (const text of ["How Quillmere works", "Keep one clear balance", "Choose what happened", "Set the amount quickly", "Add context when taking time", "Review every change", "Private sync"])
                verify(named(guide, text), text);
            verify(guide.mapToItem(null, 0, guide.height).y < window.height, "stays in the window");
            const done = named(guide, "Done");
            tryVerify(() => done.activeFocus);
            keyClick(Qt.Key_Return);
            tryVerify(() => findChild(window.Window.window, "guide.screen") === null);
        }
    }
}
