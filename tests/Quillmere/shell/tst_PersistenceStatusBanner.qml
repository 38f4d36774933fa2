import QtQuick
import QtTest
import Quillmere.shell
import Quillmere.theme

TestCase {
    id: testCase

    name: "PersistenceStatusBanner"
    when: windowShown
    visible: true
    width: 780
    height: 200

    Component {
        id: banner

        PersistenceStatusBanner {
            width: testCase.width
        }
    }

    function test_tellsTheMode_data() {
        return [
            { tag: "iCloud", mode: PersistenceMode.ICloud, text: "", color: Theme.tinted(Theme.warm, 0.18) },
            { tag: "local", mode: PersistenceMode.LocalOnly, text: "iCloud sync is unavailable. Changes are saved on this device.", color: Theme.tinted(Theme.warm, 0.18) },
            { tag: "temporary", mode: PersistenceMode.Temporary, text: "Storage is unavailable. Changes will be lost when Quillmere closes.", color: Theme.tinted(Theme.alert, 0.13) },
            { tag: "unavailable", mode: PersistenceMode.Unavailable, text: "Quillmere couldn't open storage.", color: Theme.tinted(Theme.alert, 0.13) }
        ];
    }

    function test_tellsTheMode(row) {
        const item = createTemporaryObject(banner, testCase, { mode: row.mode });
        compare(item.text, row.text);
        compare(item.Accessible.name, row.text);
        compare(item.color, row.color);
    }

    function test_wrapsItsTextInANarrowWindow() {
        const wide = createTemporaryObject(banner, testCase, { mode: PersistenceMode.LocalOnly });
        const narrow = createTemporaryObject(banner, testCase, { mode: PersistenceMode.LocalOnly });
        narrow.width = 220;
        tryVerify(() => narrow.implicitHeight > wide.implicitHeight);
    }
}
