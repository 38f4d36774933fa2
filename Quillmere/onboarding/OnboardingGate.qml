import QtQuick
import Quillmere.onboarding

// Shows the screens once the store is prepared and the first-run screen confirmed.
FocusScope {
    id: root

    required property OnboardingGateViewModel model
    // The screens behind the gate.
    required property Component content

    function show() {
        switch (root.model.content) {
        case OnboardingGateViewModel.Preparing:
            view.setSource("PreparationView.qml", { model: root.model });
            break;
        case OnboardingGateViewModel.FirstRun:
            view.setSource("OnboardingView.qml", { model: root.model.onboarding });
            break;
        case OnboardingGateViewModel.Screens:
            view.sourceComponent = root.content;
            break;
        }
    }

    Component.onCompleted: root.show()

    Connections {
        target: root.model

        function onContentChanged() {
            root.show();
        }
    }

    Loader {
        id: view

        anchors.fill: parent
        focus: true
        onLoaded: (item as Item).focus = true
    }
}
