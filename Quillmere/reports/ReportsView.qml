pragma ComponentBehavior: Bound

import QtQuick
import Quillmere.controls
import Quillmere.theme
import Quillmere.reports

// The "Calendar" route: a week or a month of days, and what changed on them. Page Up and Page Down
// turn to other periods wherever the keyboard is.
FocusScope {
    id: root

    required property ReportsViewModel model

    readonly property string title: qsTr("Calendar")

    function turn(periods: int): void {
        if (periods < 0)
            root.model.showPreviousPeriod();
        else
            root.model.showNextPeriod();
        slide.from = periods * Theme.spaceXL;
        turning.restart();
    }

    objectName: "reports.screen"
    Accessible.role: Accessible.Pane
    Accessible.name: root.title
    Keys.forwardTo: [pageKeys, scrollKeys]

    Item {
        id: pageKeys

        Keys.onPressed: event => {
            event.accepted = event.key === Qt.Key_PageUp
                || (event.key === Qt.Key_PageDown && root.model.hasNextPeriod);
            if (event.accepted)
                root.turn(event.key === Qt.Key_PageUp ? -1 : 1);
            // Not for the page to scroll by.
            event.accepted = event.accepted || event.key === Qt.Key_PageDown;
        }
    }

    ScrollKeys {
        id: scrollKeys

        page: page
    }

    ScrollArea {
        id: page

        anchors.fill: parent
        maximumWidth: 780
        padding: 20
        topPadding: Theme.spaceL
        bottomPadding: Theme.spaceXL

        PeriodHeader {
            width: parent.width
            model: root.model
            onPreviousChosen: root.turn(-1)
            onNextChosen: root.turn(1)
        }

        Column {
            id: period

            width: parent.width
            spacing: parent.spacing
            transform: Translate {
                id: offset
            }

            ReportSummary {
                width: parent.width
                figures: root.model.figures
                periodTitle: root.model.periodTitleInLowerCase
            }

            Column {
                width: parent.width
                spacing: Theme.spaceS

                Heading {
                    text: qsTr("Daily overview")
                }

                CalendarGrid {
                    id: grid

                    width: parent.width
                    days: root.model.days
                    weekdays: root.model.weekdays
                    onDayRequested: row => root.model.requestDay(row)
                }
            }

            ChangedDaysSection {
                width: parent.width
                visible: count > 0
                days: root.model.changedDays
                onDayRequested: row => root.model.requestDay(row)
            }

            EmptyState {
                width: parent.width
                topPadding: Theme.spaceL
                visible: root.model.isEmpty
                symbol: "calendar.badge.minus"
                title: qsTr("No changes this period")
                text: qsTr("Days where you add or subtract time will appear here.")
            }
        }
    }

    ParallelAnimation {
        id: turning

        SpringMotion {
            id: slide

            target: offset
            property: "x"
            to: 0
        }

        SpringMotion {
            target: period
            property: "opacity"
            from: Theme.reducedMotion ? 1 : 0.3
            to: 1
        }
    }

    Connections {
        target: root.model

        function onSelectedDayChanged() {
            if (root.model.selectedDay === null)
                return;
            // What is loaded into an open sheet can take the keyboard.
            sheet.open();
            content.setSource("DayLedgerSheet.qml", { model: root.model.selectedDay, focus: true });
        }
    }

    Connections {
        target: content.item as DayLedgerSheet

        function onDone() {
            sheet.close();
        }
    }

    Sheet {
        id: sheet

        // Before the day's model goes, its view is gone.
        onClosed: {
            content.source = "";
            root.model.closeDay();
        }

        // Within the window, whatever the day's list would like.
        Loader {
            id: content

            anchors.fill: parent
            focus: true
        }
    }
}
