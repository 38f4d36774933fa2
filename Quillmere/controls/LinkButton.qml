import QtQuick
import Quillmere.controls
import Quillmere.theme

// Text that leads somewhere, such as "See all".
ButtonBase {
    id: root

    topPadding: 3
    bottomPadding: 3
    leftPadding: 6
    rightPadding: 6
    radius: Theme.rowRadius
    font: Theme.bodyMedium
    Accessible.role: Accessible.Link

    background: null

    contentItem: Text {
        text: root.text
        textFormat: Text.PlainText
        font.family: root.font.family
        font.pixelSize: root.font.pixelSize
        font.weight: root.font.weight
        font.underline: root.hovered
        color: Theme.accentText
        opacity: root.down ? 0.7 : 1
        Accessible.ignored: true
    }

    HoverHandler {
        cursorShape: Qt.PointingHandCursor
    }
}
