import QtQuick
import QtTest
import Quillmere.test
import Quillmere.settings
import Quillmere.theme

Item {
    id: window

    width: 620
    height: 580

    Component {
        id: view

        SettingsView {
            anchors.fill: parent
            focus: true
            model: Fixture.open()
        }
    }

    TestCase {
        name: "SettingsView"
        when: windowShown

        property SettingsView shown

        function initTestCase() {
            Theme.reducedMotion = true;
        }

        function init() {
            shown = createTemporaryObject(view, window);
        }

        function part(name) {
            const found = findChild(shown, name);
            verify(found, name);
            return found;
        }

        function focusedName() {
            return window.Window.activeFocusItem.objectName;
        }

        function isInSight(item) {
            const top = item.mapToItem(window, 0, 0).y;
            return item.visible && top >= 0 && top + item.height <= window.height;
        }

        function cleanup() {
            const types = shown.model.adjustmentTypes;
            while (types.customCategories.rowCount() > 0)
                types.remove(0);
        }

        function add(title) {
            part("settings.customAdjustmentCategory.name").forceActiveFocus(Qt.TabFocusReason);
            for (const letter of title)
                keyClick(letter);
            keyClick(Qt.Key_Return);
        }

        function test_carriesItsIdentifiersAndNames_data() {
            return [
                { tag: "settings.screen", name: "Settings" },
                { tag: "settings.adjustmentKind.personalErrands", name: "Personal errands" },
                { tag: "settings.customAdjustmentCategory.add", name: "Add" },
                { tag: "settings.menuBarDisplayMode", name: "Menu bar display" },
                { tag: "settings.support", name: "Quillmere support" },
                { tag: "settings.version", name: "Version" },
                { tag: "settings.iCloudRetryFeedback",
                  name: "Still unavailable. Your changes remain safely stored on this device." },
                { tag: "settings.confirmImport", name: "Merge archive" }
            ];
        }

        function test_carriesItsIdentifiersAndNames(row) {
            const item = shown.objectName === row.tag ? shown : part(row.tag);
            compare(item.Accessible.name, row.name);
        }

        function test_tabFollowsReadingOrder() {
            add("Gym");
            waitForRendering(shown); // lays the new row out
            part("settings.appearance").forceActiveFocus(Qt.TabFocusReason);
            for (const name of ["settings.appearance", "settings.adjustmentKind.appointment",
                "settings.adjustmentKind.personalErrands", "settings.adjustmentKind.longLunch",
                "settings.adjustmentKind.other", "settings.customAdjustmentCategory.remove",
                "settings.customAdjustmentCategory.name", "settings.launchAtLogin",
                "settings.showMenuBar", "settings.menuBarDisplayMode", "settings.closeToMenuBar",
                "settings.retryICloud", "settings.support", "settings.privacy",
                "settings.exportArchive", "settings.importArchive"]) {
                compare(focusedName(), name);
                const item = window.Window.activeFocusItem;
                const top = item.mapToItem(window, 0, 0).y;
                verify(item.width > 0 && top >= 0 && top + item.height <= window.height, name + " is in sight");
                keyClick(Qt.Key_Tab);
            }
        }

        function test_aRetryThatFailedIsInSight() {
            shown.model.retryICloud();
            tryVerify(() => focusedName() === "settings.retryICloud");
            for (const name of ["settings.retryICloud", "settings.iCloudRetryFeedback"])
                tryVerify(() => isInSight(part(name)), 5000, name);
        }

        function test_switchesByKeyboardAndAnywhereInTheRow() {
            const toggle = part("settings.adjustmentKind.longLunch");
            toggle.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Space);
            verify(!toggle.on);
            keyClick(Qt.Key_Return);
            verify(toggle.on);
            mouseClick(toggle);
            verify(!toggle.on, "once only");
            mouseClick(toggle.parent.parent, 100);
            verify(toggle.on);
            verify(toggle.checked);
        }

        function test_picksAThemeByKeyboard() {
            const theme = part("settings.appearance");
            theme.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Space);
            tryCompare(theme.popup, "opened", true);
            keyClick(Qt.Key_Down);
            keyClick(Qt.Key_Down);
            keyClick(Qt.Key_Return);
            tryCompare(theme.popup, "visible", false);
            compare(Fixture.preference("appearance"), "dark");
            compare(theme.displayText, "Dark");
        }

        function test_addsAndRemovesCategoriesByKeyboard() {
            const name = part("settings.customAdjustmentCategory.name");
            add("Gym");
            add("gym");
            compare(name.text, "gym", "there already");
            verify(!part("settings.customAdjustmentCategory.add").enabled);
            name.clear(); // as assistive technology does, without keys
            add("Choir");
            compare(name.text, "");
            verify(name.activeFocus);
            const first = part("settings.customAdjustmentCategory.remove");
            compare(first.Accessible.name, "Remove Gym");
            first.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Return);
            verify(name.activeFocus);
            keyClick(Qt.Key_Return);
            compare(shown.model.adjustmentTypes.customCategories.rowCount(), 1, "once, also when held down");
        }

        function test_theFieldForCategoriesStaysInSight() {
            const name = part("settings.customAdjustmentCategory.name");
            for (let row = 0; row < 12; ++row) {
                add("Category " + row);
                tryVerify(() => isInSight(name), 5000, "after row " + row);
            }
        }
    }
}
