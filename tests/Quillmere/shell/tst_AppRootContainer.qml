import QtQuick
import QtQuick.Templates as T
import QtTest
import Quillmere.shell
import Quillmere.test

// As in the program: only an ApplicationWindow gives the focus back after an alert.
Item {
    T.ApplicationWindow {
        id: window

        width: 780
        height: 560
        visible: true

        TestCase {
            id: testCase

            name: "AppRootContainer"
            when: windowShown
            visible: true
            anchors.fill: parent

            Component {
                id: container

                AppRootContainer {
                    anchors.fill: parent
                    appState: Fixture.appState
                    widgetRefresh: Fixture.widgetRefresh

                    T.Button {
                        objectName: "content"
                        anchors.fill: parent
                        focus: true
                    }
                }
            }

            function cleanup() {
                Fixture.appState.dismissIssue();
            }

            function findText(item, text) {
                if (item.visible && item.text === text)
                    return item;
                for (const child of Array.from(item.children)) {
                    const found = findText(child, text);
                    if (found !== null)
                        return found;
                }
                return null;
            }

            function overlayText(item, text) {
                return findText(window.T.Overlay.overlay, text);
            }

            function test_showsTheBannerInEveryModeButOne_data() {
                return [
                    { tag: "iCloud", failing: [], text: "" },
                    { tag: "local", failing: ["cloud"], text: "iCloud sync is unavailable. Changes are saved on this device." },
                    { tag: "temporary", failing: ["cloud", "local"], text: "Storage is unavailable. Changes will be lost when Quillmere closes." }
                ];
            }

            function test_showsTheBannerInEveryModeButOne(row) {
                const item = createTemporaryObject(container, testCase, { storage: Fixture.storageWithout(row.failing) });
                const content = findChild(item, "content");
                if (row.text === "") {
                    compare(content.height, item.height);
                } else {
                    verify(findText(item, row.text) !== null);
                    verify(content.height < item.height);
                }
            }

            function test_alertShowsTheNewestIssueUntilItIsDismissed_data() {
                return [{ tag: "Return", key: Qt.Key_Return }, { tag: "Escape", key: Qt.Key_Escape }, { tag: "Space", key: Qt.Key_Space }];
            }

            function test_alertShowsTheNewestIssueUntilItIsDismissed(row) {
                const item = createTemporaryObject(container, testCase, { storage: Fixture.storageWithout([]) });
                const content = findChild(item, "content");
                window.requestActivate();
            tryCompare(window, "active", true);
            content.forceActiveFocus();
                Fixture.report("First", "One.");
                tryVerify(() => overlayText(item, "First") !== null);
                Fixture.report("Second", "Two.");
                tryVerify(() => overlayText(item, "Second") !== null);
                compare(overlayText(item, "First"), null);
                verify(overlayText(item, "Two.") !== null);
                tryVerify(() => !content.activeFocus);
                tryVerify(() => overlayText(item, "OK")?.activeFocus ?? false);

                keyClick(Qt.Key_Tab);
                verify(!content.activeFocus, "the focus stays in the alert");
                keyClick(row.key);
                tryVerify(() => !Fixture.hasIssue());
                tryVerify(() => content.activeFocus);
            }

            function test_tellsTheWidgetsThatItsWindowIsActive() {
                createTemporaryObject(container, testCase, { storage: Fixture.storageWithout([]) });
                window.requestActivate();
                tryVerify(() => Fixture.widgetRefresh.isActive);
            }

            function test_nothingCanBeUsedWhileRecordsAreWritten() {
                const item = createTemporaryObject(container, testCase, { storage: Fixture.storageWithout([]) });
                const content = findChild(item, "content");
                window.requestActivate();
                tryCompare(window, "active", true);
                content.forceActiveFocus();
                Fixture.startWork();
                tryCompare(content, "enabled", false);
                verify(!window.T.Overlay.overlay.enabled);
                Fixture.endWork();
                tryCompare(content, "enabled", true);
                verify(window.T.Overlay.overlay.enabled);
                tryVerify(() => content.activeFocus, 5000, "the keyboard is back");
            }

            function test_issueRaisedBeforeThereIsAContainerWaitsForIt() {
                Fixture.report("Earlier", "Message.");
                const item = createTemporaryObject(container, testCase, { storage: Fixture.storageWithout([]) });
                tryVerify(() => overlayText(item, "Earlier") !== null);
            }
        }
    }
}
