import QtQuick
import QtQuick.Layouts
import Quillmere.controls
import Quillmere.theme

// A small tile with one sum. Tiles in a row share its width evenly.
Rectangle {
    id: root

    required property string title
    required property string value
    required property string spoken
    required property string icon
    required property color tint

    Layout.fillWidth: true
    Layout.preferredWidth: 1
    implicitHeight: texts.implicitHeight + 2 * 10
    radius: 14
    color: Theme.tinted(Theme.primary, 0.05)
    border.width: Theme.highContrast ? Theme.hairlineWidth : 0
    border.color: Theme.controlBorder
    Accessible.role: Accessible.StaticText
    Accessible.name: root.title
    Accessible.description: root.spoken

    IconBadge {
        id: badge

        x: Theme.spaceM
        anchors.verticalCenter: parent.verticalCenter
        size: 30
        symbol: root.icon
        symbolSize: 14
        tint: root.tint
    }

    Column {
        id: texts

        anchors.left: badge.right
        anchors.leftMargin: 10
        anchors.right: parent.right
        anchors.rightMargin: Theme.spaceS
        anchors.verticalCenter: parent.verticalCenter

        PlainText {
            width: parent.width
            text: root.title
            font: Theme.caption
            color: Theme.secondary
            elide: Text.ElideRight
            Accessible.ignored: true
        }

        MonospacedDigits {
            text: root.value
            font: Theme.styled(15, Font.DemiBold)
            Accessible.ignored: true
        }
    }
}
