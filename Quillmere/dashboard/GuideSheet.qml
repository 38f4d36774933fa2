import QtQuick
import Quillmere.controls
import Quillmere.dashboard

// The guide over the overview, open from when it is made.
Sheet {
    id: root

    Component.onCompleted: root.open()

    TimeBankGuideView {
        anchors.fill: parent
        focus: true
        onDone: root.close()
    }
}
