import QtQuick
import QtQuick.Layouts
import Quillmere.controls
import Quillmere.theme
import Quillmere.reports

// The period's sum, and what it is made of.
SoftCard {
    id: root

    required property ledgerFigures figures
    // As it stands in a sentence.
    required property string periodTitle

    contentItem: ColumnLayout {
        spacing: Theme.spaceXS

        PlainText {
            text: qsTr("NET CHANGE")
            color: Theme.tinted(Theme.primary, Theme.highContrast ? 1 : 0.72)
            font.family: Theme.caption2.family
            font.pixelSize: Theme.caption2.pixelSize
            font.weight: Theme.caption2.weight
            font.letterSpacing: 1.2
        }

        MonospacedDigits {
            Layout.fillWidth: true
            text: root.figures.net
            font: Theme.styled(36, Font.Medium)
            color: root.figures.isNetNegative ? Theme.alertText : Theme.accentText
            Accessible.description: root.figures.netSpoken
        }

        PlainText {
            text: qsTr("Across %1").arg(root.periodTitle)
            font: Theme.subheadline
            color: Theme.secondary
        }

        RowLayout {
            Layout.fillWidth: true
            Layout.topMargin: Theme.spaceM
            spacing: 10

            LedgerMetric {
                title: qsTr("Added")
                value: root.figures.added
                spoken: root.figures.addedSpoken
                icon: "arrow.down.to.line"
                tint: Theme.accent
            }

            LedgerMetric {
                title: qsTr("Subtracted")
                value: root.figures.subtracted
                spoken: root.figures.subtractedSpoken
                icon: "arrow.up.from.line"
                tint: Theme.alert
            }

            LedgerMetric {
                title: qsTr("Net")
                value: root.figures.net
                spoken: root.figures.netSpoken
                icon: "equal"
                tint: root.figures.isNetNegative ? Theme.alert : Theme.accent
            }
        }
    }
}
