import QtQuick
import QtQuick.Layouts
import Quillmere.theme
import Quillmere.controls
import Quillmere.dashboard

// Offers to undo the change just recorded; slides in from the bottom edge and out again.
Item {
    id: root

    required property UndoOffer offer
    // Has the keyboard next, should the banner go away with it.
    required property Item heir

    // It comes in when it was made for an offer, too.
    property bool isMade: false
    property real presence: root.isMade && offer.isOffered ? 1 : 0

    implicitWidth: content.implicitWidth + 14 + Theme.spaceS
    implicitHeight: content.implicitHeight + 2 * Theme.spaceS
    visible: presence > 0
    opacity: Math.min(1, presence)
    Component.onCompleted: root.isMade = true

    Accessible.role: Accessible.AlertMessage
    Accessible.name: qsTr("%1 %2").arg(root.offer.title).arg(root.offer.amountText)

    Connections {
        target: root.offer

        // Not a binding: what is disabled has lost the keyboard already, and the ring with it.
        function onOfferChanged() {
            if (!root.offer.isOffered && undo.activeFocus)
                root.heir.forceActiveFocus(undo.focusReason);
            root.enabled = root.offer.isOffered;
        }
    }

    Behavior on presence {
        SpringMotion {}
    }

    transform: Translate {
        y: (1 - root.presence) * (root.height + Theme.spaceL)
    }

    Surface {
        anchors.fill: parent
        color: Theme.popover
        borderColor: Theme.hairline
        radius: Theme.popoverRadius
        shadowColor: Theme.deepShadow
        shadowBlur: 24
        shadowOffset: 6
    }

    RowLayout {
        id: content

        anchors.left: parent.left
        anchors.leftMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        spacing: 10

        Symbol {
            name: "checkmark.circle.fill"
            size: 16
            color: Theme.accentText
        }

        PlainText {
            text: root.offer.title
            font: Theme.bodyMedium
        }

        MonospacedDigits {
            text: root.offer.amountText
            font: Theme.body
            color: Theme.secondary
        }

        BorderedButton {
            id: undo

            objectName: "transaction.undo"
            text: qsTr("Undo")
            Accessible.description: qsTr("Removes the time-bank change")
            onClicked: root.offer.undo()
        }
    }
}
