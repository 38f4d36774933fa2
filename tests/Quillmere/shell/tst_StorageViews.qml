import QtQuick
import QtTest
import Quillmere.shell

TestCase {
    id: testCase

    name: "StorageViews"
    when: windowShown
    visible: true
    width: 780
    height: 560

    Component {
        id: unavailable

        StorageUnavailableView {
            anchors.fill: parent
        }
    }

    Component {
        id: reconnect

        StorageReconnectView {
            anchors.fill: parent
        }
    }

    SignalSpy {
        id: quit

        signalName: "quitRequested"
    }

    function texts(item) {
        let found = [];
        if (item.visible && item.text)
            found.push(item.text);
        for (const child of Array.from(item.children))
            found = found.concat(texts(child));
        return found.filter((text, i) => found.indexOf(text) === i);
    }

    function named(item, name) {
        if (item.visible && item.Accessible.name === name && item.activeFocusOnTab)
            return item;
        for (const child of Array.from(item.children)) {
            const found = named(child, name);
            if (found !== null)
                return found;
        }
        return null;
    }

    function test_reconnecting() {
        const item = createTemporaryObject(reconnect, testCase);
        compare(item.objectName, "storage.retrying");
        compare(texts(item), ["Reconnecting to iCloud…", "Your time bank remains on this device while Quillmere reconnects."]);
    }

    function test_unavailable_data() {
        return [{ tag: "with support", url: "https://example.org/support", link: ["Get support"] }, { tag: "without", url: "", link: [] }];
    }

    function test_unavailable(row) {
        const item = createTemporaryObject(unavailable, testCase, { supportURL: row.url });
        compare(item.objectName, "storage.unavailable");
        compare(texts(item), ["Quillmere couldn’t open its data", "Your existing time bank hasn’t been erased. Close and reopen Quillmere. If this keeps happening, install the latest system updates or contact support."].concat(row.link, ["Quit Quillmere"]));
        quit.target = item;
        quit.clear();
        mouseClick(named(item, "Quit Quillmere"));
        compare(quit.count, 1);
    }

    function test_compactFitsThePanel() {
        const item = createTemporaryObject(unavailable, testCase, { compact: true, supportURL: "https://example.org" });
        compare(item.implicitWidth, 330);
        verify(item.implicitHeight < createTemporaryObject(unavailable, testCase, { supportURL: "https://example.org" }).implicitHeight);
    }
}
