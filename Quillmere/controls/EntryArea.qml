import QtQuick
import QtQuick.Templates as T
import Quillmere.controls
import Quillmere.theme

// Several lines of text: grows with them from `minimumLines` to `maximumLines`, then scrolls. Tab
// leaves it. The inner editor is `editor`, which carries the accessible name the host gives.
Item {
    id: root

    property alias text: area.text
    property string placeholderText: ""
    property int minimumLines: 2
    property int maximumLines: 4
    readonly property alias editor: area
    // What the editor really gives a line; the font's own line spacing is a fraction of a pixel less.
    readonly property real lineHeight: area.contentHeight / Math.max(1, area.lineCount)
    readonly property int verticalPadding: 10

    implicitWidth: 200
    implicitHeight: 2 * root.verticalPadding
        + Math.ceil(root.lineHeight * Math.max(minimumLines, Math.min(maximumLines, area.lineCount)))
    opacity: enabled ? 1 : Theme.disabledOpacity

    HoverHandler {
        cursorShape: Qt.IBeamCursor
    }

    TapHandler {
        onTapped: area.forceActiveFocus(Qt.MouseFocusReason)
    }

    Rectangle {
        anchors.fill: parent
        radius: Theme.controlRadius
        color: Theme.control
        border.width: Theme.hairlineWidth
        border.color: Theme.controlBorder
    }

    Flickable {
        id: flick

        anchors.fill: parent
        anchors.topMargin: root.verticalPadding
        anchors.bottomMargin: root.verticalPadding
        // Only whole lines are shown.
        clip: true
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        T.ScrollBar.vertical: ThinScrollBar {}

        T.TextArea.flickable: T.TextArea {
            id: area

            leftPadding: 12
            rightPadding: 12
            wrapMode: TextEdit.Wrap
            textFormat: TextEdit.PlainText
            selectByMouse: true
            font: Theme.body
            color: Theme.primary
            selectionColor: Theme.selection
            selectedTextColor: Theme.primary
            Accessible.role: Accessible.EditableText
            Keys.priority: Keys.BeforeItem
            Keys.onTabPressed: area.nextItemInFocusChain(true).forceActiveFocus(Qt.TabFocusReason)
            Keys.onBacktabPressed: area.nextItemInFocusChain(false).forceActiveFocus(Qt.BacktabFocusReason)

            Text {
                x: area.leftPadding
                y: area.topPadding
                width: area.width - area.leftPadding - area.rightPadding
                visible: area.length === 0 && area.preeditText === ""
                text: root.placeholderText
                textFormat: Text.PlainText
                font: area.font
                color: Theme.placeholder
                elide: Text.ElideRight
                Accessible.ignored: true
            }
        }
    }

    FocusRing {
        shown: area.activeFocus
    }
}
