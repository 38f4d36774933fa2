import QtQuick
import QtQuick.Templates as T
import Quillmere.theme

// A scroll bar that is there while one scrolls or points at it.
T.ScrollBar {
    id: root

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    padding: 3
    minimumSize: 0.08
    visible: policy !== T.ScrollBar.AlwaysOff && size < 1
    Accessible.name: qsTr("Scroll bar")

    contentItem: Rectangle {
        implicitWidth: 6
        implicitHeight: 6
        radius: 3
        color: Theme.tinted(Theme.primary, root.pressed ? 0.5 : root.hovered ? 0.4 : 0.26)
        opacity: root.active || Theme.highContrast ? 1 : 0

        Behavior on opacity {
            NumberAnimation { duration: Theme.fadeDuration * 2 }
        }
    }
}
