import QtQuick
import Quillmere.controls
import Quillmere.theme

// A symbol on a tinted ground, round unless a radius is given.
Rectangle {
    id: root

    property string symbol: ""
    property color tint: Theme.accent
    property real size: 38
    property real symbolSize: Math.round(size * 0.42)
    property real strength: Theme.dark ? 0.22 : 0.15

    implicitWidth: size
    implicitHeight: size
    radius: size / 2
    color: Theme.tinted(tint, strength)
    Accessible.ignored: true

    Symbol {
        anchors.centerIn: parent
        name: root.symbol
        size: root.symbolSize
        color: root.tint
    }
}
