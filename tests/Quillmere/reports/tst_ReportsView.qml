import QtQuick
import QtTest
import Quillmere.test
import Quillmere.reports
import Quillmere.theme

Item {
    id: window

    width: 780
    height: 560

    Component {
        id: view

        ReportsView {
            anchors.fill: parent
            focus: true
            model: Fixture.model
        }
    }

    TestCase {
        name: "ReportsView"
        when: windowShown

        property Item screen

        function initTestCase() {
            Theme.reducedMotion = true;
        }

        function init() {
            Fixture.reset();
            screen = createTemporaryObject(view, window);
            screen.forceActiveFocus();
            tryVerify(() => !Fixture.model.isLoading);
        }

        function part(name) {
            const found = findChild(screen, name);
            verify(found, name);
            return found;
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

        function focusedName() {
            return window.Window.activeFocusItem.Accessible.name;
        }

        function daySheet() {
            return findChild(window.Window.window, "calendar.dayDetail");
        }

        function test_saysWhatItShows() {
            Fixture.record(150, 1, "");
            Fixture.record(-45, 2, "");
            compare(screen.objectName, "reports.screen");
            compare(screen.Accessible.name, "Calendar");
            for (const text of ["Period", "November 2026", "NET CHANGE", "+1:45", "Across november 2026", "Daily overview", "Changed days"])
                verify(named(screen, text), text);
            for (const [title, spoken] of [["Added", "plus 2 hours, 30 minutes"], ["Subtracted", "plus 0 hours, 45 minutes"], ["Net", "plus 1 hours, 45 minutes"]])
                compare(named(screen, title).Accessible.description, spoken, title);
            const grid = part("calendar.grid");
            const changed = named(grid, "Saturday, November 21, 2026");
            compare(changed.objectName, "calendar.changedDay");
            compare(changed.Accessible.role, Accessible.Button);
            compare(changed.Accessible.description, "plus 2 hours, 30 minutes. Shows this day's time-bank changes");
            verify(changed.height >= 52);
            const unchanged = named(grid, "Thursday, November 19, 2026");
            compare(unchanged.objectName, "");
            compare(unchanged.Accessible.role, Accessible.StaticText);
            compare(unchanged.Accessible.description, "No change");
            const row = named(screen, "Friday, November 20, 2026, minus 0 hours, 45 minutes");
            compare(row.objectName, "calendar.changedDay");
            compare(row.Accessible.description, "Shows this day's time-bank changes");
            verify(named(screen, "\u22120:45"));
            verify(!named(screen, "No changes this period"));
        }

        function test_saysThatAPeriodIsEmpty() {
            verify(named(screen, "No changes this period"));
            verify(named(screen, "Days where you add or subtract time will appear here."));
            verify(!named(screen, "Changed days"));
        }

        function test_namesItsControls_data() {
            return [
                { tag: "Previous period", hint: "Shows the previous month", enabled: true },
                { tag: "Next period", hint: "Shows the next month", enabled: false },
                { tag: "Export CSV", hint: "Shares a CSV file with daily additions and subtractions", enabled: true },
            ];
        }

        function test_namesItsControls(row) {
            const control = named(screen, row.tag);
            compare(control.Accessible.role, Accessible.Button);
            compare(control.Accessible.description, row.hint);
            compare(control.enabled, row.enabled);
        }

        function test_isReachedByTabInReadingOrder() {
            Fixture.record(60, 1, "");
            Fixture.model.showPreviousPeriod();
            Fixture.model.showNextPeriod();
            const reached = [];
            for (let i = 0; i < 5; ++i) {
                keyClick(Qt.Key_Tab);
                reached.push(focusedName());
            }
            compare(reached, ["Month", "Previous period", "Export CSV", "Sunday, November 22, 2026", "Saturday, November 21, 2026, plus 1 hours, 0 minutes"]);
        }

        function test_movesBetweenDaysAndPeriodsByKeys() {
            named(screen, "Sunday, November 22, 2026").forceActiveFocus(Qt.TabFocusReason);
            const steps = [
                [Qt.Key_Left, "Saturday, November 21, 2026"],
                [Qt.Key_Up, "Saturday, November 14, 2026"],
                [Qt.Key_Home, "Sunday, November 8, 2026"],
                [Qt.Key_End, "Saturday, November 14, 2026"],
                [Qt.Key_Right, "Sunday, November 15, 2026"],
                [Qt.Key_PageUp, "Thursday, October 15, 2026"],
                [Qt.Key_Down, "Thursday, October 22, 2026"],
                [Qt.Key_PageDown, "Sunday, November 22, 2026"],
                [Qt.Key_PageDown, "Sunday, November 22, 2026"],
            ];
            for (const [key, day] of steps) {
                keyClick(key);
                compare(focusedName(), day);
            }
        }

        function test_turnsPagesByItsButtonsWithoutLosingTheKeyboard() {
            const next = named(screen, "Next period");
            named(screen, "Previous period").forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Space);
            verify(named(screen, "October 2026"));
            verify(next.enabled);
            next.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Return);
            verify(named(screen, "November 2026"));
            compare(focusedName(), "Previous period");
            mouseClick(named(screen, "Week"));
            verify(named(screen, "Nov 22\u2013Nov 28, 2026"));
            compare(named(screen, "Previous period").Accessible.description, "Shows the previous week");
        }

        function test_opensAChangedDay_data() {
            return [
                { tag: "Enter in the grid", open: () => { keyClick(Qt.Key_Left); keyClick(Qt.Key_Return); } },
                { tag: "a click on the cell", open: () => mouseClick(named(part("calendar.grid"), "Saturday, November 21, 2026")) },
                { tag: "a click on the row", open: () => mouseClick(named(screen, "Saturday, November 21, 2026, plus 0 hours, 30 minutes")) },
            ];
        }

        function test_opensAChangedDay(row) {
            Fixture.record(60, 1, "Standup");
            Fixture.record(-30, 1, "");
            const cell = named(part("calendar.grid"), "Saturday, November 21, 2026");
            named(screen, "Sunday, November 22, 2026").forceActiveFocus(Qt.TabFocusReason);
            row.open();
            tryVerify(() => daySheet() !== null);
            const sheet = daySheet();
            verify(sheet.implicitWidth >= 440 && sheet.implicitHeight >= 460);
            for (const text of ["Saturday, November 21", "Summary", "Changes", "Standup, plus 1 hours, 0 minutes", "Time subtracted, minus 0 hours, 30 minutes"])
                tryVerify(() => named(sheet, text) !== null, 5000, text);
            for (const [title, spoken] of [["Added", "plus 1 hours, 0 minutes"], ["Subtracted", "plus 0 hours, 30 minutes"], ["Net", "plus 0 hours, 30 minutes"]])
                compare(named(sheet, title).Accessible.description, spoken, title);
            tryVerify(() => focusedName() === "Done");
            keyClick(Qt.Key_Return);
            tryVerify(() => daySheet() === null);
            compare(Fixture.model.selectedDay, null);
            verify(focusedName().startsWith("Saturday, November 21, 2026"));
            compare(Fixture.model.days.cursorRow, cell.row);
        }

        function test_scrollsADayByKeys() {
            for (let i = 0; i < 30; ++i)
                Fixture.record(15, 1, "Standup");
            named(screen, "Saturday, November 21, 2026, plus 7 hours, 30 minutes").Accessible.pressAction();
            tryVerify(() => focusedName() === "Done");
            const list = named(daySheet(), "Changes", Accessible.List);
            waitForRendering(list);
            keyClick(Qt.Key_End);
            verify(list.atYEnd);
            keyClick(Qt.Key_Home);
            verify(list.atYBeginning);
            keyClick(Qt.Key_Escape);
            tryVerify(() => daySheet() === null);
        }

        function test_leavesAnUnchangedDayClosed() {
            named(screen, "Sunday, November 22, 2026").forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Return);
            mouseClick(named(screen, "Thursday, November 19, 2026"));
            compare(Fixture.model.selectedDay, null);
        }
    }
}
