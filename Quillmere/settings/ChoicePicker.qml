import QtQuick
import Quillmere.controls
import Quillmere.settings
import Quillmere.theme

// A picker of a preference, in a form's row.
MenuPicker {
    id: root

    required property PreferenceChoice choice

    font: Theme.subheadlineMedium
    model: root.choice.choices
    currentIndex: root.choice.currentIndex
    onActivated: index => root.choice.choose(index)
}
