import QtQuick
import Quillmere.controls

// A modal form. As large as its content wants, within the window.
ModalPanel {
    width: Math.min(implicitContentWidth, parent.width - 2 * margins)
    height: Math.min(implicitContentHeight, parent.height - 2 * margins)
    padding: 0
}
