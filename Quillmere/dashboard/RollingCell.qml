import QtQuick
import Quillmere.theme

// One character of a RollingText: the new one comes in while the old one leaves.
Item {
    id: root

    required property string character
    // Width the character needs; 0 for none.
    required property real advance
    // 1 when characters roll upwards, -1 downwards.
    required property int direction
    required property font font
    required property color color

    property string shown: ""
    property string leaving: ""
    property real progress: 1
    property bool complete: false

    readonly property real travel: height * 0.45

    width: advance

    // Taken once: from here on the old character is kept until the new one has come.
    Component.onCompleted: {
        root.shown = root.character;
        root.complete = true;
    }
    onCharacterChanged: {
        if (root.complete) {
            root.leaving = root.shown;
            root.shown = root.character;
            roll.restart();
        }
    }

    Behavior on width {
        enabled: roll.running
        SpringMotion {}
    }

    SpringMotion {
        id: roll

        target: root
        property: "progress"
        from: 0
        to: 1
    }

    Text {
        anchors.horizontalCenter: parent.horizontalCenter
        y: (1 - root.progress) * root.travel * root.direction
        opacity: Math.min(1, root.progress)
        text: root.shown
        font: root.font
        color: root.color
        textFormat: Text.PlainText
        Accessible.ignored: true
    }

    Text {
        anchors.horizontalCenter: parent.horizontalCenter
        visible: root.progress < 1
        y: -root.progress * root.travel * root.direction
        opacity: Math.max(0, 1 - root.progress)
        text: root.leaving
        font: root.font
        color: root.color
        textFormat: Text.PlainText
        Accessible.ignored: true
    }
}
