import QtQuick
import Quillmere.theme
import Quillmere.controls
import Quillmere.onboarding

// The store is being prepared, each time this appears.
Item {
    id: root

    required property OnboardingGateViewModel model

    Component.onCompleted: root.model.prepare()

    Column {
        anchors.centerIn: parent
        spacing: Theme.spaceM

        ProgressRing {
            anchors.horizontalCenter: parent.horizontalCenter
            Accessible.name: label.text
        }

        PlainText {
            id: label

            anchors.horizontalCenter: parent.horizontalCenter
            text: qsTr("Preparing your time bank…")
            color: Theme.secondary
        }
    }
}
