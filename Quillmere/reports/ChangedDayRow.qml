import QtQuick
import QtQuick.Layouts
import Quillmere.controls
import Quillmere.theme

// A changed day: its date and its sum. Pressed, it opens the day. A divider is above it unless it is
// the first.
ButtonBase {
    id: root

    required property int index
    required property int row
    required property bool takesTime
    required property string dateText
    required property string signedText
    required property string spokenDate
    required property string spokenAmount

    objectName: "calendar.changedDay"
    text: qsTr("%1, %2").arg(root.spokenDate).arg(root.spokenAmount)
    radius: Theme.rowRadius
    implicitHeight: Math.round(42 * Theme.textScale)
    leftPadding: Theme.spaceM
    rightPadding: Theme.spaceM
    Accessible.description: qsTr("Shows this day's time-bank changes")

    background: Rectangle {
        radius: root.radius
        color: Theme.tinted(Theme.primary, root.down ? 0.09 : root.hovered ? 0.045 : 0)

        Behavior on color { FadeMotion {} }

        Divider {
            x: Theme.spaceM
            width: parent.width - 2 * x
            visible: root.index > 0
        }
    }

    contentItem: RowLayout {
        spacing: Theme.spaceM

        PlainText {
            Layout.fillWidth: true
            text: root.dateText
            font: Theme.subheadlineMedium
            elide: Text.ElideRight
            Accessible.ignored: true
        }

        MonospacedDigits {
            text: root.signedText
            font: Theme.subheadlineSemibold
            color: root.takesTime ? Theme.alertText : Theme.accentText
            Accessible.ignored: true
        }

        Symbol {
            name: "chevron.right"
            size: 12
            color: Theme.secondary
        }
    }
}
