import QtQuick
import Quillmere.controls
import Quillmere.share

// A button that hands out a file: pressed, it opens a save dialog; dragged, the file comes along.
BorderedButton {
    id: root

    required property FileShare share
    // What is handed out, as the dialog's title.
    required property string title
    property alias nameFilters: behavior.nameFilters

    symbol: "square.and.arrow.up"
    onClicked: root.share.save()

    ShareBehavior {
        id: behavior

        share: root.share
        title: root.title
    }
}
