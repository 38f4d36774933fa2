import QtQuick

// The keys that close the window and quit, for a sheet in which nothing can be lost. Those of the
// window do not reach under a sheet.
Item {
    id: root

    Shortcut {
        sequence: "Ctrl+W"
        onActivated: root.Window.window.close()
    }

    Shortcut {
        sequence: "Ctrl+Q"
        onActivated: Qt.quit()
    }
}
