import QtQuick
import QtTest
import Quillmere.shell
import Quillmere.test

TestCase {
    id: testCase

    name: "MacRootView"
    when: windowShown
    visible: true
    width: 780
    height: 560

    Component {
        id: view

        FocusScope {
            id: window

            anchors.fill: parent

            property alias commands: commands
            property alias closeSpy: closeSpy
            property alias quitSpy: quitSpy

            ApplicationCommands {
                id: commands

                routes: Fixture.routes
            }

            SignalSpy {
                id: closeSpy

                target: commands
                signalName: "closeRequested"
            }

            SignalSpy {
                id: quitSpy

                target: commands
                signalName: "quitRequested"
            }

            MacRootView {
                anchors.fill: parent
                model: Fixture.root
                commands: commands
            }
        }
    }

    function row(item, route) {
        return findChild(item, "navigation." + route);
    }

    function heading(item) {
        if (item.Accessible.role === Accessible.Heading)
            return item.text;
        for (const child of Array.from(item.children)) {
            const found = heading(child);
            if (found)
                return found;
        }
        return "";
    }

    function init() {
        Qt.openUrlExternally("quillmere://overview");
    }

    function test_sidebarListsAndSelectsRoutes() {
        const item = createTemporaryObject(view, testCase);
        const titles = { overview: "Time bank", history: "Activity", reports: "Calendar", settings: "Settings" };
        let y = -1;
        for (const route in titles) {
            const button = row(item, route);
            compare(button.Accessible.name, titles[route]);
            compare(button.Accessible.role, Accessible.Button);
            compare(button.height, 36);
            const top = button.mapToItem(item, 0, 0).y;
            verify(top > y, "in order");
            y = top;
        }
        mouseClick(row(item, "reports"));
        compare(Fixture.storedRoute(), "reports");
        compare(row(item, "reports").Accessible.description, "Selected");
        compare(row(item, "overview").Accessible.description, "");
        compare(heading(item), "Calendar");
        tryVerify(() => findChild(item, "history.screen") !== null);
    }

    function test_keysSelectRoutesFromAnywhere_data() {
        return [{ tag: "2", route: "history" }, { tag: "3", route: "reports" }, { tag: "4", route: "settings" }];
    }

    function test_keysSelectRoutesFromAnywhere(data) {
        createTemporaryObject(view, testCase);
        keyClick(data.tag, Qt.ControlModifier);
        compare(Fixture.storedRoute(), data.route);
        keyClick("1", Qt.ControlModifier);
        compare(Fixture.storedRoute(), "overview");
    }

    function test_sidebarWorksByKeyboardAlone() {
        const item = createTemporaryObject(view, testCase);
        row(item, "overview").forceActiveFocus(Qt.TabFocusReason);
        verify(row(item, "overview").visualFocus);
        keyClick(Qt.Key_Down);
        verify(row(item, "history").visualFocus);
        keyClick(Qt.Key_Return);
        compare(Fixture.storedRoute(), "history");
        keyClick(Qt.Key_Tab);
        verify(row(item, "reports").visualFocus);
        keyClick(Qt.Key_Space);
        compare(Fixture.storedRoute(), "reports");
        keyClick(Qt.Key_Up);
        keyClick(Qt.Key_Up);
        keyClick(Qt.Key_Up);
        verify(row(item, "overview").activeFocus, "stops at the first");
    }

    function test_applicationMenuOpensWithF10AndGoesBeforeTheKeysOfTheWindow() {
        const item = createTemporaryObject(view, testCase);
        keyClick("w", Qt.ControlModifier);
        keyClick("q", Qt.ControlModifier);
        compare(item.closeSpy.count, 1);
        compare(item.quitSpy.count, 1);

        keyClick(Qt.Key_F10);
        keyClick("w", Qt.ControlModifier);
        compare(item.closeSpy.count, 1, "not under a menu");
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Down);
        keyClick(Qt.Key_Return);
        tryVerify(() => Fixture.storedRoute() === "history");
    }
}
