import QtQuick
import Quillmere.onboarding

// Shows the screens once the store is prepared and the first-run screen confirmed.
FocusScope {
    id: root

    required property OnboardingGateViewModel model
    // The screens behind the gate.
    required property Component content

    Loader {
        anchors.fill: parent
        focus: true
        onLoaded: (item as Item).focus = true
        sourceComponent: {
            switch (root.model.content) {
            case OnboardingGateViewModel.Preparing:
                return preparation;
            case OnboardingGateViewModel.FirstRun:
                return firstRun;
            default:
                return root.content;
            }
        }
    }

    Component {
        id: preparation

        PreparationView {
            Component.onCompleted: root.model.prepare()
        }
    }

    Component {
        id: firstRun

        OnboardingView {
            model: root.model.onboarding
        }
    }
}
