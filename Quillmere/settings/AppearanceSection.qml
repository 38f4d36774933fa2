import QtQuick
import Quillmere.controls
import Quillmere.settings

// The colour scheme of all windows.
FormSection {
    id: root

    required property PreferenceChoice theme

    title: qsTr("Appearance")

    FormRow {
        first: true
        symbol: "circle.lefthalf.filled"
        text: qsTr("Theme")
        Accessible.ignored: true

        ChoicePicker {
            objectName: "settings.appearance"
            choice: root.theme
            Accessible.name: qsTr("Theme")
        }
    }
}
