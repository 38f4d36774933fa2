pragma ComponentBehavior: Bound

import QtQuick
import Quillmere.controls
import Quillmere.theme
import Quillmere.reports

// What was added and taken on a day, line by line.
SoftCard {
    id: root

    required property ledgerFigures figures

    component Line: Item {
        id: line

        required property string title
        required property string value
        required property string spoken
        property color color: Theme.primary

        width: parent?.width ?? 0
        implicitHeight: Math.round(32 * Theme.textScale)
        Accessible.role: Accessible.StaticText
        Accessible.name: line.title
        Accessible.description: line.spoken

        PlainText {
            anchors.verticalCenter: parent.verticalCenter
            text: line.title
            font: Theme.subheadline
            Accessible.ignored: true
        }

        MonospacedDigits {
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: line.value
            font: Theme.subheadlineSemibold
            color: line.color
            Accessible.ignored: true
        }
    }

    topPadding: Theme.spaceXS
    bottomPadding: Theme.spaceXS
    leftPadding: Theme.spaceL
    rightPadding: Theme.spaceL

    contentItem: Column {
        Line {
            title: qsTr("Added")
            value: root.figures.added
            spoken: root.figures.addedSpoken
        }

        Divider {
            width: parent.width
        }

        Line {
            title: qsTr("Subtracted")
            value: root.figures.subtracted
            spoken: root.figures.subtractedSpoken
        }

        Divider {
            width: parent.width
        }

        Line {
            title: qsTr("Net")
            value: root.figures.net
            spoken: root.figures.netSpoken
            color: root.figures.isNetNegative ? Theme.alertText : Theme.accentText
        }
    }
}
