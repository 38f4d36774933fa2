import QtQuick
import Quillmere.theme
import Quillmere.controls
import Quillmere.dashboard

// The overview.
FocusScope {
    id: root

    required property DashboardViewModel model

    readonly property string title: qsTr("Time bank")

    objectName: "overview.screen"
    Accessible.role: Accessible.Pane
    Accessible.name: root.title
    Keys.forwardTo: [scrollKeys]

    ScrollKeys {
        id: scrollKeys

        page: page
    }

    ScrollArea {
        id: page

        anchors.fill: parent
        padding: 20
        topPadding: Theme.spaceL
        // Room to scroll everything out from under the banner.
        bottomPadding: (banner.item as Item)?.visible ? banner.height + 2 * Theme.spaceL : Theme.spaceXL

        BalanceHeroView {
            width: parent.width
            summary: root.model.summary
            trend: root.model.trend
            trendSpoken: root.model.trendSpoken
            trendRangeDays: root.model.trendRangeDays
            trendRangeIndex: root.model.trendRangeIndex
            trendRangeTitles: root.model.trendRangeTitles
            onTrendRangeChosen: index => root.model.chooseTrendRange(index)
        }

        RecordTimeSection {
            id: recordTime

            width: parent.width
            onAddChosen: root.model.addTime()
            onTakeChosen: root.model.takeFlexTime()
            onGuideChosen: guide.source = "GuideSheet.qml"
        }

        // Waits for the history, which the first frames do not have yet.
        Loader {
            width: parent.width
            active: root.model.hasActivity
            Component.onCompleted: setSource("RecentActivitySection.qml", {
                items: root.model.recentItems,
                historyURL: root.model.historyURL
            })
        }
    }

    // Made when it first shows.
    Loader {
        id: banner

        readonly property bool wanted: root.model.undoOffer.isOffered

        function make() {
            if (banner.wanted && banner.status === Loader.Null)
                banner.setSource("UndoBanner.qml", {
                    offer: root.model.undoOffer,
                    heir: recordTime.addCard
                });
        }

        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.spaceL
        onWantedChanged: banner.make()
        Component.onCompleted: banner.make()
    }

    Connections {
        target: root.model

        function onActiveComposerChanged() {
            if (root.model.activeComposer !== null)
                composer.setSource("ComposerSheet.qml", { model: root.model.activeComposer });
        }
    }

    // Sheets are made when they are opened. Before the form's model goes, its view is gone.
    Loader {
        id: composer
    }

    Connections {
        target: composer.item
        ignoreUnknownSignals: true

        function onClosed() {
            composer.source = "";
            root.model.closeComposer();
        }
    }

    Loader {
        id: guide
    }

    Connections {
        target: guide.item
        ignoreUnknownSignals: true

        function onClosed() {
            guide.source = "";
        }
    }
}
