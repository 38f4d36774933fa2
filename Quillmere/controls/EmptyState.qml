import QtQuick
import Quillmere.controls
import Quillmere.theme

// What stands where there is nothing to list: a symbol, what is missing, and where it will come from.
Column {
    id: root

    property string symbol: ""
    property string title: ""
    property string text: ""

    spacing: Theme.spaceXS

    IconBadge {
        anchors.horizontalCenter: parent.horizontalCenter
        symbol: root.symbol
        tint: Theme.accent
        size: 64
        symbolSize: 28
    }

    Item {
        width: 1
        height: Theme.spaceS
    }

    PlainText {
        width: root.width
        text: root.title
        font: Theme.title3
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
        Accessible.role: Accessible.Heading
    }

    PlainText {
        width: root.width
        text: root.text
        color: Theme.secondary
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.Wrap
    }
}
