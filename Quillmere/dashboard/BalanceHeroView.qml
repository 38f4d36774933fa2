import QtQuick
import QtQuick.Layouts
import Quillmere.theme
import Quillmere.controls
import Quillmere.dashboard

// The balance card: the balance now, today's change, and the balance over the last days.
SoftCard {
    id: root

    required property balanceSummary summary
    required property list<double> trend
    required property string trendSpoken
    required property int trendRangeDays
    required property int trendRangeIndex
    required property list<string> trendRangeTitles

    readonly property int balanceSize: 66

    signal trendRangeChosen(index: int)

    objectName: "balance.summary"
    glow: Theme.tinted(root.summary.isNegative ? Theme.alert : Theme.accent, 0.18)
    Accessible.role: Accessible.Grouping

    contentItem: ColumnLayout {
        spacing: 0

        PlainText {
            text: qsTr("BALANCE")
            color: Theme.secondary
            font.family: Theme.caption2.family
            font.pixelSize: Theme.caption2.pixelSize
            font.weight: Theme.caption2.weight
            font.letterSpacing: Theme.capsSpacing
        }

        RollingText {
            Layout.fillWidth: true
            text: root.summary.text
            value: root.summary.seconds
            font: Theme.styled(root.balanceSize, Font.DemiBold)
            color: root.summary.isNegative ? Theme.alertText : Theme.primary
            Accessible.role: Accessible.StaticText
            Accessible.name: qsTr("Time bank balance")
            Accessible.description: root.summary.spoken
        }

        RowLayout {
            Layout.fillWidth: true
            Layout.bottomMargin: Theme.spaceM

            TodayPill {
                shown: root.summary.isTodayKnown
                text: root.summary.todayText
                spoken: root.summary.todaySpoken
                isNegative: root.summary.isTodayNegative
            }

            Item {
                Layout.fillWidth: true
            }

            TrendRangeMenu {
                // Its text, not its ground, ends where the card's content ends.
                Layout.rightMargin: -rightPadding
                titles: root.trendRangeTitles
                currentIndex: root.trendRangeIndex
                onChosen: index => root.trendRangeChosen(index)
            }
        }

        BalanceTrendChart {
            Layout.fillWidth: true
            Layout.preferredHeight: 62
            values: root.trend
            tint: root.summary.isNegative ? Theme.alert : Theme.accentText
            labelColor: Theme.secondary
            font: Theme.caption
            Accessible.role: Accessible.Chart
            Accessible.name: qsTr("Balance history for the last %1 days").arg(root.trendRangeDays)
            Accessible.description: qsTr("Current balance %1").arg(root.trendSpoken)
            Accessible.ignored: root.trend.length < 2
        }
    }
}
