import QtQuick
import Quillmere.theme
import Quillmere.controls
import Quillmere.dashboard

// One change in a list: direction, title and date, amount. One element for accessibility; the list
// that shows it gives it its identifier.
Item {
    id: root

    required property ledgerTransaction transaction

    implicitWidth: badge.width + texts.implicitWidth + amount.implicitWidth + 2 * Theme.spaceM
    implicitHeight: texts.implicitHeight + 2 * Theme.spaceM

    Accessible.role: Accessible.ListItem
    Accessible.name: root.transaction.accessibleName

    IconBadge {
        id: badge

        anchors.verticalCenter: parent.verticalCenter
        size: 30
        symbol: root.transaction.systemImage
        symbolSize: 12
        tint: root.transaction.takesTime ? Theme.alert : Theme.accent
    }

    Column {
        id: texts

        anchors.left: badge.right
        anchors.leftMargin: Theme.spaceM
        anchors.right: amount.left
        anchors.rightMargin: Theme.spaceM
        anchors.verticalCenter: parent.verticalCenter
        spacing: 1

        PlainText {
            width: parent.width
            text: root.transaction.title
            font: Theme.subheadlineMedium
            elide: Text.ElideRight
            maximumLineCount: 1
            Accessible.ignored: true
        }

        PlainText {
            width: parent.width
            text: root.transaction.dateText
            font: Theme.caption
            color: Theme.secondary
            elide: Text.ElideRight
            Accessible.ignored: true
        }
    }

    MonospacedDigits {
        id: amount

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: root.transaction.amountText
        font: Theme.subheadlineSemibold
        color: root.transaction.takesTime ? Theme.alertText : Theme.accentText
        Accessible.ignored: true
    }
}
