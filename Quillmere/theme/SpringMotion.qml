import QtQuick
import Quillmere.theme

// The application's spring: response 0.5, damping fraction 0.85. No motion when the user asks for
// less of it.
NumberAnimation {
    duration: Theme.springDuration
    easing: Spring.easing
}
