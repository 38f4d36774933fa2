import QtQuick
import Quillmere.controls
import Quillmere.share
import Quillmere.theme
import Quillmere.reports

// Which period is shown, and its export. In one line where there is room, else in two.
Item {
    id: root

    required property ReportsViewModel model

    readonly property bool wide: width >= 216 * Theme.textScale + pager.width + share.width
                                          + 2 * Theme.spaceL

    signal previousChosen()
    signal nextChosen()

    implicitHeight: root.wide ? picker.height : pager.y + pager.height

    SegmentedPicker {
        id: picker

        width: Math.min(360, root.wide ? 216 * Theme.textScale
                                       : root.width - share.width - Theme.spaceL)
        titles: [qsTr("Week"), qsTr("Month")]
        currentIndex: root.model.granularityIndex
        Accessible.name: qsTr("Period")
        onActivated: index => root.model.chooseGranularity(index)
    }

    PeriodPager {
        id: pager

        x: Math.round(root.wide ? (picker.width + share.x - width) / 2 : (root.width - width) / 2)
        y: root.wide ? Math.round((picker.height - height) / 2) : picker.height + Theme.spaceM
        title: root.model.periodTitle
        word: root.model.periodWord
        hasNext: root.model.hasNextPeriod
        onPreviousChosen: root.previousChosen()
        onNextChosen: root.nextChosen()
    }

    ShareButton {
        id: share

        x: root.width - width
        y: Math.round((picker.height - height) / 2)
        share: root.model.csvShare
        title: qsTr("Quillmere %1").arg(root.model.periodTitle)
        nameFilters: [qsTr("Comma-separated text (*.csv)")]
        enabled: !root.model.isLoading
        text: qsTr("Export CSV")
        Accessible.description: qsTr("Shares a CSV file with daily additions and subtractions")
    }
}
