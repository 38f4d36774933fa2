import QtQuick
import QtTest
import Quillmere.test
import Quillmere.onboarding
import Quillmere.theme

Item {
    id: window

    width: 780
    height: 560

    OnboardingGate {
        id: gate

        anchors.fill: parent
        focus: true
        model: Fixture.model
        content: Component {
            Item {
                objectName: "screens"
            }
        }
    }

    TestCase {
        name: "OnboardingGate"
        when: windowShown

        function initTestCase() {
            Theme.reducedMotion = true;
        }

        // What is read out, from top to bottom.
        function texts(item) {
            let found = [];
            if (item.visible && item.Accessible.name && !item.Accessible.ignored && item.text)
                found.push(item.text);
            for (let i = 0; i < item.children.length; ++i)
                found = found.concat(texts(item.children[i]));
            return found;
        }

        function toFirstRun() {
            Fixture.removeSettings();
            tryCompare(Fixture.model, "content", OnboardingGateViewModel.FirstRun);
            return findChild(gate, "onboarding.screen");
        }

        function test_preparesEachTimeTheProgressAppears() {
            for (let i = 0; i < 2; ++i) {
                Fixture.removeSettings();
                compare(Fixture.model.content, OnboardingGateViewModel.Preparing);
                compare(texts(gate), ["Preparing your time bank…"]);
                tryCompare(Fixture.model, "content", OnboardingGateViewModel.FirstRun);
            }
        }

        function test_saysWhatQuillmereIs() {
            const screen = toFirstRun();
            compare(texts(screen), [
                "Your flex time, made simple",
                "Quillmere is a manual time bank. Add time when you earn it, subtract time when you use it, and always see the balance you have now.",
                "Enter exact hours and minutes",
                "Use quick add and subtract actions",
                "Review every change and calendar day",
                "Sync privately through iCloud",
                "Open my time bank",
            ]);
            const button = findChild(screen, "onboarding.primaryAction");
            compare(button.Accessible.role, Accessible.Button);
            verify(button.width <= 380);
        }

        function test_opensTheTimeBankWithTheKeyboard() {
            const screen = toFirstRun();
            tryVerify(() => findChild(screen, "onboarding.primaryAction").activeFocus);
            keyClick(Qt.Key_Return);
            tryVerify(() => findChild(gate, "screens") !== null);
            compare(Fixture.model.content, OnboardingGateViewModel.Screens);
        }
    }
}
