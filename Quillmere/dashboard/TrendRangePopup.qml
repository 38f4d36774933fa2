pragma ComponentBehavior: Bound

import QtQuick
import Quillmere.controls
import Quillmere.dashboard

// The ranges to choose from.
PopupMenu {
    id: root

    required property TrendRangeMenu button

    Instantiator {
        model: root.button.titles
        onObjectAdded: (index, object) => root.insertItem(index, object as PopupMenuItem)
        onObjectRemoved: (index, object) => root.removeItem(object as PopupMenuItem)

        delegate: PopupMenuItem {
            required property int index
            required property string modelData

            text: modelData
            checked: index === root.button.currentIndex
            onTriggered: root.button.chosen(index)
        }
    }
}
