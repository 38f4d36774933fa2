import QtQuick
import Quillmere.theme

// A hairline; give it the length of its line.
Rectangle {
    implicitWidth: Theme.hairlineWidth
    implicitHeight: Theme.hairlineWidth
    color: Theme.divider
}
