pragma ComponentBehavior: Bound

import QtQuick
import Quillmere.theme

// One line of text whose digits are all equally wide, so that figures stand in columns and do not
// jump. A plain Text where the font's digits are that already.
Item {
    id: root

    property string text: ""
    property font font: Theme.body
    property color color: Theme.primary
    // Text.AlignLeft, Text.AlignHCenter or Text.AlignRight.
    property int horizontalAlignment: Text.AlignLeft

    readonly property font digitFont: SystemFont.tabular(root.font)
    readonly property bool plain: SystemFont.hasEqualDigits(root.digitFont)
    readonly property real cell: root.plain ? 0 : SystemFont.digitWidth(root.digitFont)
    readonly property real slack: Math.max(0, width - implicitWidth)
    readonly property real shift: root.horizontalAlignment === Text.AlignRight ? slack
        : root.horizontalAlignment === Text.AlignHCenter ? slack / 2 : 0

    implicitWidth: plain ? line.implicitWidth : cells.implicitWidth
    implicitHeight: line.implicitHeight
    baselineOffset: line.baselineOffset

    Accessible.role: Accessible.StaticText
    Accessible.name: root.text

    Text {
        id: line

        x: root.shift
        visible: root.plain
        text: root.text
        font: root.digitFont
        color: root.color
        textFormat: Text.PlainText
        Accessible.ignored: true
    }

    Row {
        id: cells

        x: root.shift
        visible: !root.plain

        Repeater {
            model: root.plain ? [] : root.text.split("")

            Text {
                id: glyph

                required property string modelData

                width: glyph.modelData >= "0" && glyph.modelData <= "9" ? root.cell : implicitWidth
                horizontalAlignment: Text.AlignHCenter
                text: glyph.modelData
                font: root.digitFont
                color: root.color
                textFormat: Text.PlainText
                Accessible.ignored: true
            }
        }
    }
}
