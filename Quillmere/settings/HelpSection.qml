import QtQuick
import Quillmere.controls
import Quillmere.settings

// Where to find help, and which version this is.
FormSection {
    id: root

    required property SettingsViewModel model

    title: qsTr("Help & about")
    footer: qsTr("Support and privacy pages open on %1.").arg(root.model.supportHost)

    LinkRow {
        objectName: "settings.support"
        first: true
        symbol: "questionmark.circle"
        text: qsTr("Quillmere support")
        url: root.model.supportURL
    }

    LinkRow {
        objectName: "settings.privacy"
        symbol: "hand.raised"
        text: qsTr("Privacy notice")
        url: root.model.privacyURL
    }

    FormRow {
        objectName: "settings.version"
        symbol: "info.circle"
        text: qsTr("Version")
        value: root.model.version
    }
}
