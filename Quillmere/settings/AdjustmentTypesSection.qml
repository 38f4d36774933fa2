pragma ComponentBehavior: Bound

import QtQuick
import Quillmere.controls
import Quillmere.settings

// Which categories the forms offer.
FormSection {
    id: root

    required property AdjustmentTypesViewModel model

    // The part that has the keyboard now stands elsewhere.
    signal keyboardMoved(part: Item)

    title: qsTr("Adjustment types")
    footer: qsTr("Choose the built-in categories shown in the activity editor, or add your own. Removing a custom category never changes existing activities.")

    FormRow {
        first: true
        symbol: "plus.forwardslash.minus"
        text: qsTr("Manual adjustment")
        value: qsTr("Always shown")
    }

    Repeater {
        model: root.model.kinds

        ToggleRow {
            id: kind

            required property int index
            required property string rawValue
            required property string title
            required property bool shown
            required symbol

            text: kind.title
            identifier: "settings.adjustmentKind." + kind.rawValue
            on: kind.shown
            onToggled: root.model.toggleKind(kind.index)
        }
    }

    Repeater {
        id: categories

        model: root.model.customCategories

        CustomCategoryRow {
            id: category

            required property int index
            required property string title

            text: category.title
            // A key that is still down does no harm in the field, as it would on the next button.
            onRemoveChosen: {
                const count = categories.count;
                root.model.remove(category.index);
                if (categories.count < count)
                    name.forceActiveFocus(Qt.TabFocusReason);
            }
        }
    }

    FormRow {
        contentInset: 9
        Accessible.ignored: true
        onYChanged: {
            if (name.activeFocus)
                root.keyboardMoved(name);
        }

        NewCategoryField {
            id: name

            width: root.width - 30
            model: root.model
        }
    }
}
