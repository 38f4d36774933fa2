pragma ComponentBehavior: Bound

import QtQuick
import QtQml
import Quillmere.shell

// What the application menu offers, and its keys. The keys work wherever the focus is, except under a
// sheet, a menu or an alert: there they would leave what is being typed without a word, so Escape
// comes first; a sheet for reading has LeavingKeys. The window's own close button always works.
Item {
    id: root

    required property RouteSelection routes

    signal settingsRequested()
    signal closeRequested()
    signal quitRequested()
    signal menuRequested()

    function navigate(route: RouteItem) {
        Qt.openUrlExternally(route.url);
    }

    Instantiator {
        model: root.routes.routes

        Shortcut {
            required property RouteItem modelData

            sequence: modelData.shortcut
            onActivated: root.navigate(modelData)
        }
    }

    Shortcut {
        sequence: "Ctrl+,"
        onActivated: root.settingsRequested()
    }

    Shortcut {
        sequence: "Ctrl+W"
        onActivated: root.closeRequested()
    }

    Shortcut {
        sequence: "Ctrl+Q"
        onActivated: root.quitRequested()
    }

    Shortcut {
        sequence: "F10"
        onActivated: root.menuRequested()
    }
}
