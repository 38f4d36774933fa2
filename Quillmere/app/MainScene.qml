import QtQuick
import Quillmere.app
import Quillmere.onboarding
import Quillmere.shell
import Quillmere.theme

// The main window's content on an open store.
AppRootContainer {
    id: root

    required property MainSceneModel scene
    required property ApplicationCommands commands

    focus: true

    OnboardingGate {
        anchors.fill: parent
        focus: true
        model: root.scene.gate
        content: Component {
            MacRootView {
                focus: true
                model: root.scene.root // qmllint disable unqualified
                commands: root.commands // qmllint disable unqualified
            }
        }
    }

    // The frame has a place for it; before there is a frame it stands alone.
    Loader {
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: Theme.spaceS
        active: root.scene.gate.content !== OnboardingGateViewModel.Screens
        sourceComponent: ApplicationMenuButton {
            commands: root.commands // qmllint disable unqualified
        }
    }
}
