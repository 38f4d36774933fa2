pragma ComponentBehavior: Bound

import QtQuick
import Quillmere.theme
import Quillmere.reports

// The days of a period under the names of their weekdays. One stop for Tab: the arrows move between
// days, Home and End within the week, Enter and Space open a changed day.
FocusScope {
    id: root

    required property ReportDaysModel days
    required property list<string> weekdays

    readonly property int gap: 6
    readonly property real cellWidth: (width - 6 * root.gap) / 7

    signal dayRequested(row: int)

    function focusCursor(): void {
        const day = cells.itemAt(root.days.cursorRow);
        if (day)
            day.forceActiveFocus(Qt.TabFocusReason);
    }

    function handleKey(key: int): bool {
        switch (key) {
        case Qt.Key_Left: root.days.moveDays(-1); break;
        case Qt.Key_Right: root.days.moveDays(1); break;
        case Qt.Key_Up: root.days.moveDays(-7); break;
        case Qt.Key_Down: root.days.moveDays(7); break;
        case Qt.Key_Home: root.days.moveToWeekStart(); break;
        case Qt.Key_End: root.days.moveToWeekEnd(); break;
        case Qt.Key_Return:
        case Qt.Key_Enter:
        case Qt.Key_Space: root.dayRequested(root.days.cursorRow); return true;
        default: return false;
        }
        root.focusCursor();
        return true;
    }

    objectName: "calendar.grid"
    implicitHeight: column.implicitHeight
    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Daily overview")
    Keys.onPressed: event => event.accepted = root.handleKey(event.key)

    Connections {
        target: root.days

        // The keyboard stays on the cursor when the days become others.
        function onCursorRowChanged() {
            if (root.activeFocus)
                root.focusCursor();
        }
    }

    Column {
        id: column

        width: parent.width
        spacing: Theme.spaceXS

        Row {
            spacing: root.gap

            Repeater {
                model: root.weekdays

                Text {
                    required property string modelData

                    width: root.cellWidth
                    height: Math.round(22 * Theme.textScale)
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    text: modelData
                    textFormat: Text.PlainText
                    font: Theme.caption2
                    color: Theme.secondary
                    Accessible.ignored: true
                }
            }
        }

        Grid {
            columns: 7
            spacing: root.gap

            Repeater {
                id: cells

                model: root.days

                CalendarDay {
                    width: root.cellWidth
                    activeFocusOnTab: activeFocus || row === root.days.cursorRow
                    onRequested: root.dayRequested(row)
                }
            }
        }
    }
}
