import QtQuick
import Quillmere.controls
import Quillmere.settings
import Quillmere.theme

// A row that opens a page in the browser.
ActionRow {
    id: root

    required property url url

    Accessible.role: Accessible.Link
    tint: Theme.primary
    symbolTint: Theme.secondary
    trailingSymbol: "arrow.up.right"
    onClicked: Qt.openUrlExternally(root.url)
}
