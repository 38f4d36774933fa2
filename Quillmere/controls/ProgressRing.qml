import QtQuick
import Quillmere.controls
import Quillmere.theme

// Something is under way, for how long nobody knows. Stands still when the user asks for less motion.
Item {
    id: root

    property real size: 32

    implicitWidth: size
    implicitHeight: size
    Accessible.role: Accessible.ProgressBar

    ProgressArc {
        id: arc

        anchors.fill: parent
        color: Theme.dark ? Theme.accent : Theme.accentText
        trackColor: Theme.tinted(Theme.primary, 0.10)

        RotationAnimator on rotation {
            running: root.visible && !Theme.reducedMotion
            from: 0
            to: 360
            duration: 1100
            loops: Animation.Infinite
        }
    }
}
