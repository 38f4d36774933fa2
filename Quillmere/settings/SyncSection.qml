import QtQuick
import Quillmere.controls
import Quillmere.settings

// How the time bank is kept.
FormSection {
    id: root

    required property SettingsViewModel model

    readonly property alias retryButton: retry

    title: qsTr("Sync & privacy")

    FormRow {
        first: true
        symbol: root.model.storageStatus.symbol
        text: root.model.storageStatus.title
        detail: root.model.storageStatus.text
    }

    ActionRow {
        id: retry

        objectName: "settings.retryICloud"
        visible: root.model.canRetryICloud
        text: qsTr("Retry iCloud sync")
        symbol: "arrow.clockwise.icloud"
        onClicked: root.model.retryICloud()
    }

    FormRow {
        visible: root.model.canRetryICloud && root.model.didLastICloudRetryFail
        objectName: "settings.iCloudRetryFeedback"
        symbol: "info.circle"
        text: qsTr("Still unavailable. Your changes remain safely stored on this device.")
        note: true
    }
}
