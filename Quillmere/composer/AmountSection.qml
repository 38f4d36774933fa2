pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Layouts
import Quillmere.composer
import Quillmere.controls
import Quillmere.theme

// The amount: typed, stepped by the hour, or one of the presets.
ColumnLayout {
    id: root

    required property TransactionComposerViewModel model

    spacing: Theme.spaceS

    FieldLabel {
        text: qsTr("Amount")
    }

    RowLayout {
        Layout.fillWidth: true
        spacing: 10

        IconButton {
            objectName: "transaction.amount.decrease"
            Layout.preferredWidth: amount.height
            Layout.preferredHeight: amount.height
            bordered: true
            text: qsTr("Decrease amount by one hour")
            symbol: "minus"
            symbolSize: 14
            Accessible.description: root.model.hoursText
            onClicked: root.model.stepDown()
        }

        EntryField {
            id: amount

            objectName: "transaction.customHours"
            Layout.fillWidth: true
            implicitHeight: Math.max(40, contentHeight + topPadding + bottomPadding)
            focus: true
            text: root.model.hoursText
            font: SystemFont.tabular(Theme.styled(17, Font.DemiBold))
            placeholderText: qsTr("1")
            unit: qsTr("hours")
            inputMethodHints: Qt.ImhFormattedNumbersOnly
            Accessible.name: qsTr("Amount in hours")
            onTextChanged: root.model.hoursText = text
            Component.onCompleted: selectAll()
        }

        IconButton {
            objectName: "transaction.amount.increase"
            Layout.preferredWidth: amount.height
            Layout.preferredHeight: amount.height
            bordered: true
            text: qsTr("Increase amount by one hour")
            symbol: "plus"
            symbolSize: 14
            Accessible.description: root.model.hoursText
            onClicked: root.model.stepUp()
        }
    }

    AmountMessage {
        Layout.fillWidth: true
        message: root.model.validationMessage
    }

    Flow {
        Layout.fillWidth: true
        Layout.topMargin: 2
        spacing: Theme.spaceS

        FieldLabel {
            height: presets.count > 0 ? presets.itemAt(0).height : implicitHeight
            rightPadding: Theme.spaceXS
            verticalAlignment: Text.AlignVCenter
            text: qsTr("Quick amount")
        }

        Repeater {
            id: presets

            model: root.model.presetHours

            BorderedButton {
                required property int modelData

                objectName: "transaction.preset." + modelData + "Hours"
                text: qsTr("%1 h").arg(modelData)
                Accessible.name: qsTr("Set amount to %1 hours").arg(modelData)
                onClicked: root.model.choosePreset(modelData)
            }
        }
    }
}
