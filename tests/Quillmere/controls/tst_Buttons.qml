import QtQuick
import QtTest
import Quillmere.controls
import Quillmere.theme

Item {
    id: window

    width: 600
    height: 400

    Column {
        ProminentButton { id: prominent; text: "Save"; symbol: "plus" }
        BorderedButton { id: bordered; text: "Undo" }
        IconButton { id: icon; text: "How it works"; symbol: "info.circle" }
        LinkButton { id: link; text: "See all" }
        CardButton { id: card; text: "Add time"; subtitle: "Worked extra"; symbol: "plus" }
    }

    SignalSpy {
        id: clicked

        signalName: "clicked"
    }

    TestCase {
        name: "Buttons"
        when: windowShown

        function test_answerToKeys_data() {
            return [
                { tag: "prominent", button: prominent, role: Accessible.Button, name: "Save" },
                { tag: "bordered", button: bordered, role: Accessible.Button, name: "Undo" },
                { tag: "icon", button: icon, role: Accessible.Button, name: "How it works" },
                { tag: "link", button: link, role: Accessible.Link, name: "See all" },
                { tag: "card", button: card, role: Accessible.Button, name: "Add time" }
            ];
        }

        function test_answerToKeys(row) {
            clicked.target = row.button;
            clicked.clear();
            row.button.forceActiveFocus(Qt.TabFocusReason);
            verify(row.button.visualFocus);
            keyClick(Qt.Key_Space);
            keyClick(Qt.Key_Return);
            keyClick(Qt.Key_Enter);
            mouseClick(row.button);
            compare(clicked.count, 4);
            compare(row.button.Accessible.role, row.role);
            compare(row.button.Accessible.name, row.name);

            row.button.enabled = false;
            mouseClick(row.button);
            row.button.Accessible.pressAction();
            compare(clicked.count, 4);
            tryVerify(() => Math.abs(row.button.opacity - Theme.disabledOpacity) < 0.001);
            row.button.enabled = true;
        }
    }
}
