import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Quillmere.controls
import Quillmere.theme

// What alerts and confirmations share: a panel above everything else with a title, a message, and
// what the user may answer below. Escape closes it; the focus goes back to where it was.
T.Popup {
    id: root

    property string title: ""
    property string message: ""
    default property alias answers: answers.data

    readonly property FocusKeeper keeper: FocusKeeper {}

    parent: T.Overlay.overlay
    x: Math.round((parent.width - width) / 2)
    y: Math.round((parent.height - height) / 2)
    width: Math.min(360, parent.width - 2 * margins)
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    margins: Theme.spaceL
    padding: Theme.spaceXL
    z: 1
    modal: true
    focus: true
    dim: true
    closePolicy: T.Popup.CloseOnEscape
    onAboutToShow: root.keeper.take(root.parent.Window.activeFocusItem)
    onClosed: root.keeper.giveBack(root.parent.Window.activeFocusItem)

    T.Overlay.modal: Rectangle {
        color: Theme.scrim
    }

    enter: Transition {
        NumberAnimation { property: "opacity"; from: 0; to: 1; duration: Theme.fadeDuration }
        SpringMotion { property: "scale"; from: Theme.reducedMotion ? 1 : 0.96; to: 1 }
    }
    exit: Transition {
        NumberAnimation { property: "opacity"; from: 1; to: 0; duration: Theme.fadeDuration }
    }

    background: Surface {
        color: Theme.sheet
        borderColor: Theme.hairline
        radius: Theme.sheetRadius
        shadowColor: Theme.deepShadow
        shadowBlur: 48
        shadowOffset: 14
    }

    ColumnLayout {
        width: parent.width
        spacing: Theme.spaceS
        Accessible.role: Accessible.AlertMessage
        Accessible.name: root.title
        Accessible.description: root.message

        PlainText {
            Layout.fillWidth: true
            text: root.title
            font: Theme.headline
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }

        PlainText {
            Layout.fillWidth: true
            text: root.message
            font: Theme.subheadline
            color: Theme.secondary
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }

        RowLayout {
            id: answers

            Layout.fillWidth: true
            Layout.topMargin: Theme.spaceS
            spacing: Theme.spaceS
        }
    }
}
