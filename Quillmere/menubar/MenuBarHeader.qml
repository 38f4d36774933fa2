import QtQuick
import Quillmere.controls
import Quillmere.dashboard
import Quillmere.shell
import Quillmere.theme

// The leaf and the balance, which are one to assistive technology.
Item {
    id: root

    required property LedgerBalance balance

    implicitHeight: Math.max(leaf.height, figures.height)
    Accessible.role: Accessible.StaticText
    Accessible.name: qsTr("Time bank balance")
    Accessible.description: root.balance.spoken

    Symbol {
        id: leaf

        anchors.verticalCenter: parent.verticalCenter
        name: "leaf.fill"
        size: 44
        color: Theme.accent
    }

    Column {
        id: figures

        anchors.left: leaf.right
        anchors.leftMargin: 14
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter

        PlainText {
            text: qsTr("AVAILABLE FLEX TIME")
            color: Theme.secondary
            font.family: Theme.caption2.family
            font.pixelSize: Theme.caption2.pixelSize
            font.weight: Theme.caption2.weight
            font.letterSpacing: Theme.capsSpacing
            Accessible.ignored: true
        }

        RollingText {
            width: parent.width
            text: root.balance.text
            value: root.balance.seconds
            font: Theme.styled(30, Font.DemiBold)
            color: root.balance.isNegative ? Theme.alertText : Theme.primary
        }
    }
}
