import QtQuick
import Quillmere.theme

// For colours and opacity of controls under the pointer: short, and none with reduced motion.
ColorAnimation {
    duration: Theme.fadeDuration
    easing.type: Easing.OutCubic
}
