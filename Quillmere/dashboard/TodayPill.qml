import QtQuick
import Quillmere.theme
import Quillmere.controls

// Today's change in a pill. Keeps its place while the change is not known yet.
Rectangle {
    id: root

    required property bool shown
    required property string text
    required property string spoken
    required property bool isNegative

    readonly property color tint: root.isNegative ? Theme.alertText : Theme.accentText

    implicitWidth: content.implicitWidth + 2 * Theme.spaceM
    implicitHeight: content.implicitHeight + 2 * Theme.spaceS
    radius: height / 2
    color: Theme.tinted(root.isNegative ? Theme.alert : Theme.accent, Theme.dark ? 0.10 : 0.13)
    opacity: root.shown ? 1 : 0

    Accessible.role: Accessible.StaticText
    Accessible.name: qsTr("Time-bank change today")
    Accessible.description: root.spoken
    Accessible.ignored: !root.shown

    Behavior on opacity {
        NumberAnimation { duration: Theme.fadeDuration }
    }

    Row {
        id: content

        anchors.centerIn: parent
        spacing: Theme.spaceS

        IconBadge {
            size: 22
            symbolSize: 10
            symbol: root.isNegative ? "minus" : "plus"
            tint: root.tint
            strength: 0.13
        }

        MonospacedDigits {
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            font: Theme.captionMedium
            color: root.tint
            Accessible.ignored: true
        }
    }
}
