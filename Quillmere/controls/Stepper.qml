import QtQuick
import QtQuick.Templates as T
import Quillmere.controls
import Quillmere.theme

// A whole number, a step less or more by two buttons, the arrow keys or assistive technology; Home
// and End go as far as it may. It asks the host for each change with `modified`, never for less than
// `from` or more than `to`. The host shows the number and sets Accessible.name.
T.Control {
    id: root

    property int value: 0
    property int from: 0
    property int to: 99
    readonly property int minimumValue: from
    readonly property int maximumValue: to
    property int stepSize: 1

    signal modified(value: int)

    function step(distance: int): void {
        const target = Math.max(from, Math.min(to, value + distance));
        if (enabled && target !== value)
            modified(target);
    }

    function distanceOf(key: int): int {
        switch (key) {
        case Qt.Key_Left:
        case Qt.Key_Down:
        case Qt.Key_Minus:
            return -stepSize;
        case Qt.Key_Right:
        case Qt.Key_Up:
        case Qt.Key_Plus:
            return stepSize;
        case Qt.Key_Home:
            return from - value;
        case Qt.Key_End:
            return to - value;
        default:
            return 0;
        }
    }

    implicitWidth: implicitContentWidth
    implicitHeight: Theme.compactControlHeight
    focusPolicy: Qt.StrongFocus
    opacity: enabled ? 1 : Theme.disabledOpacity
    Accessible.role: Accessible.SpinBox
    Accessible.focusable: root.enabled
    Accessible.onIncreaseAction: root.step(root.stepSize)
    Accessible.onDecreaseAction: root.step(-root.stepSize)
    // Assistive technology writes the value itself.
    onValueChanged: root.modified(root.value)
    Keys.onPressed: event => {
        const distance = root.distanceOf(event.key);
        event.accepted = distance !== 0;
        root.step(distance);
    }

    background: Rectangle {
        radius: Theme.controlRadius
        color: Theme.control
        border.width: Theme.hairlineWidth
        border.color: Theme.controlBorder
    }

    contentItem: Row {
        StepperButton {
            height: root.height
            symbol: "minus"
            usable: root.value > root.from
            onClicked: root.step(-root.stepSize)
        }

        Divider {
            anchors.verticalCenter: parent.verticalCenter
            height: root.height - 12
        }

        StepperButton {
            height: root.height
            symbol: "plus"
            usable: root.value < root.to
            onClicked: root.step(root.stepSize)
        }
    }

    FocusRing {
        shown: root.visualFocus
    }
}
