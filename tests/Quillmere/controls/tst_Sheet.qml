import QtQuick
import QtTest
import Quillmere.controls
import Quillmere.theme

Item {
    id: window

    width: 600
    height: 400

    BorderedButton {
        id: opener

        text: "opener"
        onClicked: sheet.open()
    }

    BorderedButton {
        id: other

        y: 40
        text: "other"
    }

    Sheet {
        id: sheet

        Column {
            EntryField {
                id: first

                focus: true
            }

            EntryArea {
                id: area
            }

            BorderedButton {
                id: last

                text: "last"
            }
        }
    }

    AlertPanel {
        id: alert

        title: "Title"
        message: "Message"
    }

    SignalSpy {
        id: dismissed

        target: alert
        signalName: "dismissed"
    }

    TestCase {
        name: "Sheet"
        when: windowShown

        function initTestCase() {
            Theme.reducedMotion = true;
        }

        function init() {
            first.focus = true;
            opener.forceActiveFocus(Qt.TabFocusReason);
            keyClick(Qt.Key_Return);
            tryCompare(sheet, "opened", true);
            verify(first.activeFocus);
        }

        function cleanup() {
            sheet.close();
            tryCompare(sheet, "visible", false);
        }

        function test_keepsTheKeyboard() {
            keyClick(Qt.Key_Tab);
            verify(area.editor.activeFocus);
            keyClick(Qt.Key_Tab);
            verify(last.activeFocus);
            keyClick(Qt.Key_Tab);
            verify(first.activeFocus);
            keyClick(Qt.Key_Backtab, Qt.ShiftModifier);
            verify(last.activeFocus);
        }

        function test_givesTheKeyboardBack() {
            keyClick(Qt.Key_Escape);
            tryCompare(sheet, "visible", false);
            verify(opener.activeFocus);
            verify(opener.visualFocus, "and shows it");
        }

        function test_keepsThePointer() {
            mouseClick(other);
            verify(sheet.opened);
            verify(!other.activeFocus);
        }

        function test_anAlertStandsAboveIt_data() {
            return [{ tag: "Enter", key: Qt.Key_Return }, { tag: "Space", key: Qt.Key_Space },
                { tag: "Escape", key: Qt.Key_Escape }];
        }

        function test_anAlertStandsAboveIt(row) {
            dismissed.clear();
            alert.open();
            tryCompare(alert, "opened", true);
            keyClick(row.key);
            tryCompare(alert, "visible", false);
            compare(dismissed.count, 1);
            verify(sheet.opened);
            verify(first.activeFocus, "the form has the keyboard again");
        }
    }
}
