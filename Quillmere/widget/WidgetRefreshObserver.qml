import QtQuick
import Quillmere.widget

// Nothing to be seen: tells its model whether the window it stands in is the active one.
Item {
    id: root

    required property WidgetRefreshObserverViewModel model

    Accessible.ignored: true

    Binding {
        target: root.model
        property: "isActive"
        value: root.Window.active
    }
}
