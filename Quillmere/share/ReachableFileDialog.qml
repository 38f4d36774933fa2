import QtQuick
import QtQuick.Dialogs
import Quillmere.share
import Quillmere.theme

// The desktop's file dialog, or Qt's own where the desktop has none, made fit for the keyboard and
// for assistive technology, and in the colours of the program.
FileDialog {
    id: root

    readonly property DialogAccess access: DialogAccess {}
    readonly property Palette colors: Palette {
        window: Theme.popover
        windowText: Theme.primary
        base: Theme.popover
        text: Theme.primary
        button: Theme.track
        buttonText: Theme.primary
        light: Theme.popover
        midlight: Theme.controlHover
        mid: Theme.controlBorder
        dark: Theme.tinted(Theme.primary, 0.4)
        // Behind selected text and around what has the keyboard.
        highlight: Theme.focus
        highlightedText: Theme.dark ? Theme.popover : Theme.primary
        placeholderText: Theme.placeholder
    }

    onVisibleChanged: {
        if (root.visible && root.parentWindow)
            root.access.open(root.parentWindow, root.colors);
    }
    onCurrentFolderChanged: root.access.follow()
}
