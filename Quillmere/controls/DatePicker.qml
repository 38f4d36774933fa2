import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Quillmere.controls
import Quillmere.theme

// A day, and a month to choose it from in a popover. The host sets Accessible.name.
ButtonBase {
    id: root

    required property DatePickerModel model
    readonly property bool opened: popover.opened

    leftPadding: 13
    rightPadding: 13
    topPadding: 6
    bottomPadding: 6
    text: root.model.text
    font: Theme.body
    Accessible.description: root.model.spokenText

    onClicked: popover.opened ? popover.close() : popover.open()
    Keys.onDownPressed: popover.open()

    background: Rectangle {
        implicitWidth: 160
        implicitHeight: Theme.controlHeight
        radius: root.radius
        color: root.down || popover.visible ? Theme.controlPressed
            : root.hovered ? Theme.controlHover : Theme.control
        border.width: Theme.hairlineWidth
        border.color: Theme.controlBorder

        Behavior on color { FadeMotion {} }
    }

    contentItem: RowLayout {
        spacing: Theme.spaceS

        Text {
            Layout.fillWidth: true
            text: root.text
            textFormat: Text.PlainText
            font: root.font
            color: Theme.primary
            elide: Text.ElideRight
            Accessible.ignored: true
        }

        Symbol {
            name: "calendar"
            size: 14
            color: Theme.secondary
        }
    }

    Popover {
        id: popover

        x: root.width - width
        closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent
        onAboutToShow: root.model.showSelected()
        onOpened: month.focusCursor()

        MonthPanel {
            id: month

            model: root.model
            onPicked: popover.close()
        }
    }
}
