import QtQuick
import QtQuick.Templates as T
import Quillmere.controls
import Quillmere.dashboard
import Quillmere.theme

// One change of the list, under the title of its day where it is the day's first. The rows of a day
// stand on one card, of which each draws its part.
FocusScope {
    id: root

    required property int index
    required property ledgerTransaction transaction
    required property string spoken
    required property string dayTitle
    required property bool firstOfDay
    required property bool lastOfDay
    required property bool selected
    // Gets the keys before the row does.
    required property Item keyHandler

    readonly property bool current: ListView.isCurrentItem
    readonly property int edge: 5

    signal pressed(modifiers: int)
    signal menuRequested(position: point)

    // Takes the keyboard and shows that it has it, also when it had it before.
    function takeKeyboard(): void {
        row.forceActiveFocus(Qt.TabFocusReason);
        row.focusReason = Qt.TabFocusReason;
    }

    // A row kept for later use is not there, for assistive technology either.
    ListView.onPooled: {
        root.visible = false;
        root.focus = false;
    }
    ListView.onReused: root.visible = true
    implicitHeight: (firstOfDay ? title.height : 0) + card.height + (lastOfDay ? 14 : 0)

    FieldLabel {
        id: title

        x: Theme.spaceXS
        width: root.width - 2 * x
        height: implicitHeight + 8 + Theme.spaceS
        visible: root.firstOfDay
        bottomPadding: Theme.spaceS
        verticalAlignment: Text.AlignBottom
        text: root.dayTitle
        elide: Text.ElideRight
        Accessible.role: Accessible.Heading
        Accessible.ignored: !root.firstOfDay
    }

    Item {
        id: card

        y: root.firstOfDay ? title.height : 0
        width: root.width
        height: row.height + (root.firstOfDay ? root.edge : 0) + (root.lastOfDay ? root.edge : 0)

        CardPart {
            anchors.fill: parent
            first: root.firstOfDay
            last: root.lastOfDay
        }

        Divider {
            x: Theme.cardPadding
            width: parent.width - 2 * x
            visible: !root.firstOfDay
        }

        // Of the templates only this one is a list item to assistive technology.
        T.ItemDelegate {
            id: row

            objectName: "history.item"
            y: root.firstOfDay ? root.edge : 0
            width: parent.width
            height: content.implicitHeight
            focus: true
            focusPolicy: root.current || row.activeFocus ? Qt.StrongFocus : Qt.ClickFocus
            leftPadding: Theme.cardPadding
            rightPadding: Theme.cardPadding
            Keys.forwardTo: [root.keyHandler]
            Accessible.name: root.spoken
            Accessible.description: qsTr("Opens this item for editing")
            Accessible.focusable: true
            Accessible.selectable: true
            Accessible.selected: root.selected
            Accessible.onPressAction: root.pressed(Qt.NoModifier)

            background: Rectangle {
                x: 6
                y: 3
                width: row.width - 2 * x
                height: row.height - 2 * y
                radius: Theme.cardRadius - 8
                color: root.selected ? Theme.tinted(Theme.accent, pointer.pressed ? 0.26 : 0.18)
                    : Theme.tinted(Theme.primary, pointer.pressed ? 0.07 : pointer.containsMouse ? 0.04 : 0)
                border.width: root.selected && Theme.highContrast ? 2 : 0
                border.color: Theme.focus

                Behavior on color { FadeMotion {} }

                FocusRing {
                    shown: row.visualFocus
                    radius: parent.radius
                }
            }

            contentItem: LedgerTransactionRow {
                id: content

                transaction: root.transaction
                Accessible.ignored: true
            }

            MouseArea {
                id: pointer

                anchors.fill: parent
                acceptedButtons: Qt.LeftButton | Qt.RightButton
                hoverEnabled: true
                onClicked: mouse => {
                    if (mouse.button === Qt.RightButton)
                        root.menuRequested(pointer.mapToItem(root, mouse.x, mouse.y));
                    else
                        root.pressed(mouse.modifiers);
                }
            }
        }
    }
}
