import QtQuick
import Quillmere.controls
import Quillmere.theme

// A row that opens a page in the browser. Qt 6.4 tells assistive technology that whatever is made as a
// button is one; so the row around the button has the keyboard and is the link.
Item {
    id: root

    required property url url
    property alias symbol: row.symbol
    property alias text: row.text
    property alias first: row.first

    implicitWidth: parent?.width ?? 0
    implicitHeight: row.implicitHeight
    activeFocusOnTab: true
    Keys.forwardTo: [row]
    Accessible.role: Accessible.Link
    Accessible.name: row.text
    Accessible.focusable: true
    Accessible.onPressAction: row.clicked()

    ActionRow {
        id: row

        width: root.width
        focusPolicy: Qt.NoFocus
        tint: Theme.primary
        symbolTint: Theme.secondary
        trailingSymbol: "arrow.up.right"
        Accessible.ignored: true
        onClicked: Qt.openUrlExternally(root.url)
    }

    FocusRing {
        shown: root.activeFocus
        radius: row.radius
    }
}
