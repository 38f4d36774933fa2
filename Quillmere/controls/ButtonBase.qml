import QtQuick
import QtQuick.Templates as T
import Quillmere.controls
import Quillmere.theme

// What all buttons share: Enter besides Space, the pointer's states, the focus ring, and the look of
// what cannot be used. `text` is the accessible name, shown or not.
T.Button {
    id: root

    property string symbol: ""
    property real radius: Theme.controlRadius

    implicitWidth: Math.max(implicitBackgroundWidth + leftInset + rightInset,
                            implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(implicitBackgroundHeight + topInset + bottomInset,
                             implicitContentHeight + topPadding + bottomPadding)
    hoverEnabled: true
    opacity: enabled ? 1 : Theme.disabledOpacity
    font: Theme.bodyMedium

    Accessible.role: Accessible.Button
    Accessible.name: root.text
    // Qt 6.4 has no click() and loses what assistive technology presses, which it may do to a button
    // that is disabled: Qt 6.4 does not say so.
    Accessible.onPressAction: {
        if (root.enabled)
            root.clicked();
    }
    // A key that is held down presses once.
    Keys.onReturnPressed: event => {
        if (!event.isAutoRepeat)
            root.clicked();
    }
    Keys.onEnterPressed: event => {
        if (!event.isAutoRepeat)
            root.clicked();
    }
    Keys.onPressed: event => event.accepted = event.isAutoRepeat && event.key === Qt.Key_Space
    Keys.onReleased: event => event.accepted = event.isAutoRepeat && event.key === Qt.Key_Space

    Behavior on opacity {
        NumberAnimation { duration: Theme.fadeDuration }
    }

    FocusRing {
        shown: root.visualFocus
        radius: root.radius
    }
}
