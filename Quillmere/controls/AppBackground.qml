import QtQuick
import Quillmere.controls
import Quillmere.theme

// What every window stands on: the accent's and the warm colour's glow over the window colour.
Rectangle {
    id: root

    color: Theme.window
    Accessible.ignored: true

    GradientFill {
        anchors.fill: parent
        colors: [Theme.tinted(Theme.accent, 0.12), "transparent", Theme.tinted(Theme.warm, 0.07)]
    }
}
