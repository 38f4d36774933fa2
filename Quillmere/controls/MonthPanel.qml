pragma ComponentBehavior: Bound

import QtQuick
import Quillmere.controls
import Quillmere.theme

// The month of a DatePickerModel. Arrows move by days and weeks, Page Up and Page Down by months,
// Home and End within the week; Enter and Space pick.
FocusScope {
    id: root

    required property DatePickerModel model
    readonly property real cell: Math.round(34 * Theme.textScale)

    signal picked()

    function focusCursor(): void {
        const day = days.itemAt(root.model.cursorRow);
        if (day)
            day.forceActiveFocus(Qt.TabFocusReason);
    }

    function pick(row: int): void {
        if (root.model.pick(row))
            root.picked();
    }

    function handleKey(key: int): bool {
        switch (key) {
        case Qt.Key_Left: root.model.moveDays(-1); break;
        case Qt.Key_Right: root.model.moveDays(1); break;
        case Qt.Key_Up: root.model.moveDays(-7); break;
        case Qt.Key_Down: root.model.moveDays(7); break;
        case Qt.Key_PageUp: root.model.moveMonths(-1); break;
        case Qt.Key_PageDown: root.model.moveMonths(1); break;
        case Qt.Key_Home: root.model.moveToWeekStart(); break;
        case Qt.Key_End: root.model.moveToWeekEnd(); break;
        case Qt.Key_Return:
        case Qt.Key_Enter:
        case Qt.Key_Space: root.pick(root.model.cursorRow); return true;
        default: return false;
        }
        // The cells of another month are new items.
        root.focusCursor();
        return true;
    }

    implicitWidth: 7 * cell
    implicitHeight: column.implicitHeight

    Column {
        id: column

        spacing: Theme.spaceXS

        Item {
            width: root.width
            implicitHeight: 32

            PlainText {
                anchors.left: parent.left
                anchors.leftMargin: Theme.spaceS
                anchors.verticalCenter: parent.verticalCenter
                text: root.model.monthTitle
                font: Theme.subheadlineSemibold
                Accessible.role: Accessible.Heading
            }

            Row {
                anchors.right: parent.right
                spacing: 2

                IconButton {
                    text: qsTr("Previous month")
                    symbol: "chevron.left"
                    symbolSize: 13
                    onClicked: root.model.moveMonths(-1)
                }

                IconButton {
                    text: qsTr("Next month")
                    symbol: "chevron.right"
                    symbolSize: 13
                    enabled: root.model.hasNextMonth
                    onClicked: {
                        root.model.moveMonths(1);
                        // A button that can no longer be used loses the keyboard.
                        if (!enabled)
                            root.focusCursor();
                    }
                }
            }
        }

        Row {
            Repeater {
                model: root.model.weekdays

                Text {
                    required property string modelData

                    width: root.cell
                    height: Math.round(22 * Theme.textScale)
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    text: modelData
                    textFormat: Text.PlainText
                    font: Theme.styled(11, Font.Medium)
                    color: Theme.secondary
                    Accessible.ignored: true
                }
            }
        }

        Grid {
            id: grid

            columns: 7
            // Six weeks, so that the panel keeps its height from month to month.
            height: 6 * root.cell

            Keys.onPressed: event => event.accepted = root.handleKey(event.key)

            Repeater {
                id: days

                model: root.model

                MonthDay {
                    required property int index

                    width: root.cell
                    height: root.cell
                    activeFocusOnTab: activeFocus || index === root.model.cursorRow
                    onPressed: root.pick(index)
                }
            }
        }
    }
}
