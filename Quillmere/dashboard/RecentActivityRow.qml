import QtQuick
import QtQuick.Layouts
import Quillmere.controls
import Quillmere.dashboard

// One of the latest changes, with a divider above it unless it is the first.
ColumnLayout {
    id: root

    required property int index
    required property ledgerTransaction transaction

    spacing: 0

    Divider {
        Layout.fillWidth: true
        visible: root.index > 0
    }

    LedgerTransactionRow {
        objectName: "overview.recent.item"
        Layout.fillWidth: true
        transaction: root.transaction
    }
}
