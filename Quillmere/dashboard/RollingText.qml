pragma ComponentBehavior: Bound

import QtQuick
import Quillmere.theme
import Quillmere.dashboard

// A figure whose characters roll into place when it changes: upwards when its value grows, downwards
// when it falls. Digits stand in cells of one width. Shrinks down to minimumScale to fit the width.
// Its characters are silent for accessibility: whoever shows it gives it a name and a value.
Item {
    id: root

    required property string text
    // The number behind the text, for the direction only.
    required property real value
    required property font font
    required property color color
    property real minimumScale: 0.65

    property real lastValue: value
    property int direction: 1

    readonly property real naturalWidth: widthOf(text)
    readonly property real fit: naturalWidth > width && width > 0
        ? Math.max(minimumScale, width / naturalWidth) : 1
    // Cells as wide as the widest digit leave the others far apart in large type.
    readonly property real digitWidth: SystemFont.digitWidth(metrics.font)
        - (SystemFont.hasEqualDigits(metrics.font) ? 0 : 0.025 * root.font.pixelSize)
    // Repeaters make all their items anew when their number changes; so it changes seldom.
    readonly property int cellCount: Math.ceil(text.length / 8) * 8

    function widthOf(text: string): real {
        let sum = 0;
        for (const character of text) {
            sum += advanceOf(character);
        }
        return sum;
    }

    function advanceOf(character: string): real {
        if (character === "") {
            return 0;
        }
        return character >= "0" && character <= "9" ? digitWidth : metrics.advanceWidth(character);
    }

    implicitWidth: naturalWidth
    implicitHeight: metrics.height

    onValueChanged: {
        root.direction = root.value < root.lastValue ? -1 : 1;
        root.lastValue = root.value;
    }

    FontMetrics {
        id: metrics

        font: SystemFont.tabular(root.font)
    }

    Row {
        anchors.verticalCenter: parent.verticalCenter
        layoutDirection: Qt.RightToLeft
        scale: root.fit
        transformOrigin: Item.Left

        Repeater {
            // Counted from the right, so that minutes stay minutes when the hours grow a digit.
            model: root.cellCount

            RollingCell {
                id: cell

                required property int index

                character: root.text.charAt(root.text.length - 1 - cell.index)
                advance: root.advanceOf(cell.character)
                direction: root.direction
                font: metrics.font
                color: root.color
                height: metrics.height
            }
        }
    }
}
