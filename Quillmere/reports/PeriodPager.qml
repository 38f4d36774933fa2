import QtQuick
import Quillmere.controls
import Quillmere.theme

// The period's title between the buttons that turn to the periods before and after it.
Row {
    id: root

    required property string title
    // "week" or "month".
    required property string word
    required property bool hasNext

    signal previousChosen()
    signal nextChosen()

    spacing: Theme.spaceXS

    IconButton {
        id: previous

        bordered: true
        text: qsTr("Previous period")
        symbol: "chevron.left"
        symbolSize: 13
        Accessible.description: qsTr("Shows the previous %1").arg(root.word)
        onClicked: root.previousChosen()
    }

    PlainText {
        // The buttons stay where they are from one title to the next.
        width: Math.max(implicitWidth + 2 * Theme.spaceS, Math.round(200 * Theme.textScale))
        anchors.verticalCenter: parent.verticalCenter
        horizontalAlignment: Text.AlignHCenter
        text: root.title
        font: Theme.headline
        Accessible.role: Accessible.Heading
    }

    IconButton {
        bordered: true
        text: qsTr("Next period")
        symbol: "chevron.right"
        symbolSize: 13
        enabled: root.hasNext
        Accessible.description: qsTr("Shows the next %1").arg(root.word)
        onClicked: {
            const reason = visualFocus ? Qt.TabFocusReason : Qt.OtherFocusReason;
            root.nextChosen();
            // A button that can no longer be used loses the keyboard.
            if (!root.hasNext)
                previous.forceActiveFocus(reason);
        }
    }
}
