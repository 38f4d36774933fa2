pragma ComponentBehavior: Bound

import QtQuick
import Quillmere.controls

// The choice of how far the balance history reaches back.
MenuButton {
    id: root

    required property list<string> titles
    required property int currentIndex

    signal chosen(index: int)

    text: qsTr("Balance history")
    Accessible.name: qsTr("Balance history range")

    menu: PopupMenu {
        id: ranges

        Instantiator {
            model: root.titles
            onObjectAdded: (index, object) => ranges.insertItem(index, object as PopupMenuItem)
            onObjectRemoved: (index, object) => ranges.removeItem(object as PopupMenuItem)

            delegate: PopupMenuItem {
                required property int index
                required property string modelData

                text: modelData
                checked: index === root.currentIndex
                onTriggered: root.chosen(index)
            }
        }
    }
}
