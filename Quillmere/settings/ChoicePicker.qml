import QtQuick
import Quillmere.controls
import Quillmere.settings
import Quillmere.theme

// A picker of a preference, in a form's row: as wide as the choice needs.
MenuPicker {
    id: root

    required property PreferenceChoice choice

    // The picker keeps room for a symbol.
    readonly property real symbolRoom: 15 + Theme.spaceS

    implicitWidth: Math.ceil(metrics.advanceWidth) + leftPadding + rightPadding + symbolRoom
    implicitHeight: Math.max(Theme.compactControlHeight, implicitContentHeight + topPadding + bottomPadding)
    topPadding: 4
    bottomPadding: 4
    font: Theme.subheadlineMedium
    model: root.choice.choices
    currentIndex: root.choice.currentIndex
    onActivated: index => root.choice.choose(index)

    TextMetrics {
        id: metrics

        font: root.font
        text: root.displayText
    }
}
