import QtQuick
import Quillmere.controls
import Quillmere.theme

// A row of a form: symbol and title at its start, whatever its content is at its end, and a hairline
// towards the row above.
Item {
    id: root

    property string symbol: ""
    property color tint: Theme.secondary
    property string text: ""
    property string detail: ""
    // What holds at the moment, at the row's end.
    property string value: ""
    // A remark rather than a setting.
    property bool note: false
    // Room above and below the content.
    property int contentInset: 6
    // What the content may reach towards the edge, for buttons without a frame.
    property int overhang: 0
    // The first row of its group has no hairline above it.
    property bool first: false
    // Whether a press anywhere in the row counts.
    property bool pressable: false
    default property alias content: trailing.data

    signal pressed()

    readonly property int edge: 15

    implicitWidth: parent?.width ?? 0
    implicitHeight: Math.max(42, labels.height + 2 * 11, trailing.height + 2 * contentInset)
    Accessible.role: Accessible.StaticText
    Accessible.name: root.text
    Accessible.description: root.detail || root.value

    TapHandler {
        enabled: root.pressable
        onTapped: root.pressed()
    }

    Divider {
        x: Theme.hairlineWidth
        width: parent.width - 2 * x
        visible: !root.first
    }

    Symbol {
        id: icon

        x: root.edge
        y: labels.y + Math.round((title.height - height) / 2)
        name: root.symbol
        size: 16
        color: root.tint
    }

    Column {
        id: labels

        anchors.verticalCenter: parent.verticalCenter
        x: root.symbol === "" ? root.edge : root.edge + 27
        width: Math.max(0, trailing.x - x - (trailing.width > 0 ? Theme.spaceM : 0))
        spacing: 2

        PlainText {
            id: title

            width: parent.width
            text: root.text
            font: root.note ? Theme.subheadline : Theme.body
            color: root.note ? Theme.secondary : Theme.primary
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }

        PlainText {
            width: parent.width
            visible: root.detail !== ""
            text: root.detail
            font: Theme.caption
            color: Theme.secondary
            lineHeight: 1.15
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
    }

    Row {
        id: trailing

        anchors.verticalCenter: parent.verticalCenter
        anchors.right: parent.right
        anchors.rightMargin: root.edge - root.overhang
        spacing: Theme.spaceS

        PlainText {
            visible: text !== ""
            text: root.value
            color: Theme.secondary
            Accessible.ignored: true
        }
    }
}
