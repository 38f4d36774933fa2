import QtQuick
import Quillmere.menubar
import Quillmere.theme

// The tray panel: the balance, the two ways to record a change with the form that they open, and the
// ways out. The form covers what lies on its side of the actions, and everything where the screen has
// no room for both.
FocusScope {
    id: root

    required property MenuBarViewModel model
    // Whether there is more room above the actions than below.
    property bool opensUpwards: false
    property real maximumHeight: Infinity

    readonly property bool composing: popover.opened
    readonly property real gap: popover.tipHeight + 2
    readonly property real reach: Theme.spaceL + actions.height + gap + margin
        + (opensUpwards ? footer.height : header.height) + Theme.spaceL
    readonly property bool isCrowded: reach + popover.implicitHeight > maximumHeight
    // What the form leaves around itself.
    readonly property int margin: 7

    signal openAppChosen()
    signal quitChosen()

    function showComposer(): void {
        const composer = root.model.activeComposer;
        if (composer !== null)
            popover.open(composer, root.model.isTaking ? take : add);
        else
            popover.close();
    }

    implicitWidth: composing ? popover.implicitWidth + 2 * margin : column.width
    implicitHeight: {
        if (!composing)
            return column.height;
        if (opensUpwards && !isCrowded)
            return column.y + column.height;
        return popover.y + popover.height + margin;
    }
    Accessible.role: Accessible.Pane
    Accessible.name: qsTr("Time bank")
    Component.onCompleted: {
        if (root.model.activeComposer !== null)
            root.showComposer();
    }
    Keys.onEscapePressed: event => {
        event.accepted = root.composing;
        if (root.composing)
            root.model.activeComposer.cancel();
    }

    Connections {
        target: root.model

        function onActiveComposerChanged() {
            root.showComposer();
        }
    }

    Connections {
        target: root.model.activeComposer

        function onFinished() {
            root.model.closeComposer();
        }
    }

    Column {
        id: column

        x: (root.width - width) / 2
        y: root.composing && root.opensUpwards
            ? popover.y + popover.height + root.gap - topPadding : 0
        width: 350
        padding: Theme.spaceL
        spacing: Theme.spaceL
        visible: !(root.composing && root.isCrowded)

        MenuBarHeader {
            id: header

            width: parent.width - 2 * parent.padding
            visible: !root.composing || !root.opensUpwards
            balance: root.model.balance
        }

        Row {
            id: actions

            readonly property real cardWidth: (parent.width - 2 * parent.padding - spacing) / 2

            spacing: 14

            MenuBarActionCard {
                id: add

                objectName: "menuBar.action.add"
                width: actions.cardWidth
                focus: true
                text: qsTr("Add time")
                symbol: "plus"
                tint: Theme.accent
                selected: root.model.isAdding
                Accessible.description: qsTr("Opens the time entry form")
                onClicked: root.model.addTime()
            }

            MenuBarActionCard {
                id: take

                objectName: "menuBar.action.take"
                width: actions.cardWidth
                text: qsTr("Take flex time")
                symbol: "minus"
                tint: Theme.alert
                selected: root.model.isTaking
                Accessible.description: qsTr("Opens the time entry form")
                onClicked: root.model.takeFlexTime()
            }
        }

        MenuBarFooter {
            id: footer

            width: parent.width - 2 * parent.padding
            visible: !root.composing || root.opensUpwards
            onOpenAppChosen: root.openAppChosen()
            onQuitChosen: root.quitChosen()
        }
    }

    ComposerPopover {
        id: popover

        readonly property Item opener: root.model.isTaking ? take : add

        anchors.horizontalCenter: parent.horizontalCenter
        y: root.opensUpwards || root.isCrowded
            ? root.margin : column.y + actions.y + actions.height + root.gap
        width: implicitWidth
        height: root.isCrowded ? Math.min(implicitHeight, root.maximumHeight - 2 * root.margin)
                               : implicitHeight
        standsAbove: root.opensUpwards
        tipX: column.x + actions.x + opener.x + opener.width / 2 - x
        tipShown: !root.isCrowded
    }
}
