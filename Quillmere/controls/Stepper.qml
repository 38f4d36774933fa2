import QtQuick
import QtQuick.Templates as T
import Quillmere.controls
import Quillmere.theme

// A whole number, a step less or more by two buttons, the arrow keys or assistive technology; Home
// and End go as far as it may. `modified` tells the host the number, which is never less than `from`
// nor more than `to`. The host shows it and sets Accessible.name.
T.SpinBox {
    id: root

    readonly property real half: (width - 1) / 2

    signal modified(value: int)

    implicitWidth: 2 * 38 + 1
    implicitHeight: Theme.compactControlHeight
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    opacity: enabled ? 1 : Theme.disabledOpacity
    Accessible.role: Accessible.SpinBox
    Accessible.focusable: root.enabled
    Accessible.onIncreaseAction: {
        if (root.enabled)
            root.increase();
    }
    Accessible.onDecreaseAction: {
        if (root.enabled)
            root.decrease();
    }
    onValueChanged: root.modified(root.value)
    Keys.onLeftPressed: root.decrease()
    Keys.onRightPressed: root.increase()
    Keys.onPressed: event => {
        switch (event.key) {
        case Qt.Key_Minus:
            root.decrease();
            break;
        case Qt.Key_Plus:
            root.increase();
            break;
        case Qt.Key_Home:
            root.modified(root.from);
            break;
        case Qt.Key_End:
            root.modified(root.to);
            break;
        default:
            return;
        }
        event.accepted = true;
    }

    background: Rectangle {
        radius: Theme.controlRadius
        color: Theme.control
        border.width: Theme.hairlineWidth
        border.color: Theme.controlBorder

        Divider {
            x: root.half
            y: 6
            height: root.height - 12
        }
    }

    down.indicator: StepperButton {
        width: root.half
        height: root.height
        symbol: "minus"
        usable: root.value > root.from
        pressed: root.down.pressed
        hovered: root.down.hovered
    }

    up.indicator: StepperButton {
        x: root.half + 1
        width: root.half
        height: root.height
        symbol: "plus"
        usable: root.value < root.to
        pressed: root.up.pressed
        hovered: root.up.hovered
    }

    FocusRing {
        shown: root.visualFocus
    }
}
