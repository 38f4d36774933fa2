pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import Quillmere.controls
import Quillmere.shell
import Quillmere.theme

// Takes pictures of what the program shows only while its store is not there, in the folder it runs
// in: the views of storage, and the banners above a window's content.
TestCase {
    id: testCase

    name: "Pictures"
    when: windowShown
    visible: true
    width: 980
    height: 700

    Component {
        id: unavailable

        StorageUnavailableView {
            supportURL: "https://example.org"
        }
    }

    Component {
        id: compact

        StorageUnavailableView {
            compact: true
            supportURL: "https://example.org"
        }
    }

    Component {
        id: reconnect

        StorageReconnectView {}
    }

    Component {
        id: banners

        Item {
            id: page

            Column {
                Repeater {
                    model: [PersistenceMode.LocalOnly, PersistenceMode.Temporary, PersistenceMode.Unavailable]

                    PersistenceStatusBanner {
                        required property int modelData

                        width: page.width
                        mode: modelData
                    }
                }
            }
        }
    }

    Component {
        id: ground

        AppBackground {}
    }

    function test_pictures_data() {
        const rows = [];
        for (const dark of [false, true])
            for (const highContrast of [false, true])
                for (const [name, view, width, height] of [
                    ["unavailable", unavailable, 620, 440], ["unavailable-large", unavailable, 980, 700],
                    ["unavailable-compact", compact, 330, 400], ["reconnect", reconnect, 620, 440],
                    ["banners", banners, 620, 440]]) {
                    const look = (dark ? "dark" : "light") + (highContrast ? "-contrast" : "");
                    rows.push({ tag: `storage-${name}-${look}`, view, width, height, dark, highContrast });
                }
        return rows;
    }

    function test_pictures(row) {
        Theme.dark = row.dark;
        Theme.highContrast = row.highContrast;
        Theme.reducedMotion = true;
        const size = { width: row.width, height: row.height };
        const page = createTemporaryObject(ground, testCase, size);
        createTemporaryObject(row.view, page, size);
        waitForRendering(page);
        const file = row.tag + (Screen.devicePixelRatio === 2 ? "-2x" : "") + ".png";
        let saved = "";
        page.grabToImage(result => saved = result.saveToFile(file) ? file : "nothing");
        tryVerify(() => saved !== "");
        compare(saved, file);
    }
}
