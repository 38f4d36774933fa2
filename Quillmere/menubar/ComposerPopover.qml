import QtQuick
import Quillmere.composer
import Quillmere.controls
import Quillmere.theme

// The form in a popover whose tip points at what opened it: under it, or over it where it
// `standsAbove`. Gives the keyboard back when the form has gone.
FocusScope {
    id: root

    property bool standsAbove: false
    property bool tipShown: true
    // Where the tip is, from the left.
    property real tipX: width / 2

    readonly property bool opened: form.item !== null
    readonly property int tipHeight: 9

    readonly property FocusKeeper keeper: FocusKeeper {}

    function open(composer: TransactionComposerViewModel, opener: Item): void {
        root.keeper.take(opener);
        form.setSource("qrc:/qt/qml/Quillmere/composer/TransactionComposerView.qml", {
            model: composer,
            compact: true,
            focus: true
        });
        form.forceActiveFocus(Qt.PopupFocusReason);
        appearance.restart();
    }

    function close(): void {
        form.source = "";
        root.keeper.giveBack(null);
    }

    implicitWidth: form.implicitWidth
    implicitHeight: form.implicitHeight
    transformOrigin: standsAbove ? Item.Bottom : Item.Top
    visible: opened

    ParallelAnimation {
        id: appearance

        NumberAnimation {
            target: root
            property: "opacity"
            from: 0
            to: 1
            duration: Theme.fadeDuration
        }
        SpringMotion {
            target: root
            property: "scale"
            from: Theme.reducedMotion ? 1 : 0.97
            to: 1
        }
    }

    PopoverSurface {
        anchors.fill: parent
    }

    // Covers the surface's hairline where the tip begins.
    Item {
        x: root.tipX - width / 2
        y: root.standsAbove ? root.height - 1 : 1 - height
        width: 2 * height
        height: root.tipHeight
        visible: root.tipShown
        clip: true

        Rectangle {
            anchors.horizontalCenter: parent.horizontalCenter
            anchors.verticalCenter: root.standsAbove ? parent.top : parent.bottom
            width: parent.height * Math.SQRT2 - 1
            height: width
            rotation: 45
            radius: 2
            antialiasing: true
            color: Theme.popover
            border.width: Theme.hairlineWidth
            border.color: Theme.controlBorder
        }
    }

    Loader {
        id: form

        anchors.fill: parent
        focus: true
    }
}
