import QtQuick
import Quillmere.controls
import Quillmere.settings

// The program's place on the desktop.
FormSection {
    id: root

    required property SettingsViewModel model

    title: qsTr("Mac")
    footer: qsTr("Keep quick balance controls available in the menu bar. When enabled, ⌘W hides the main window instead of closing it.")

    ToggleRow {
        first: true
        symbol: "arrow.right.square"
        text: qsTr("Launch Quillmere at login")
        identifier: "settings.launchAtLogin"
        on: root.model.launchAtLogin.launchesAtLogin
        onToggled: root.model.launchAtLogin.toggle()
    }

    FormRow {
        visible: root.model.launchAtLogin.requiresApproval
        symbol: "info.circle"
        text: qsTr("Allow Quillmere in System Settings to finish enabling launch at login.")
        note: true

        BorderedButton {
            text: qsTr("Open Login Items Settings")
            onClicked: root.model.launchAtLogin.openSettings()
        }
    }

    ToggleRow {
        symbol: "menubar.rectangle"
        text: qsTr("Show time bank in menu bar")
        identifier: "settings.showMenuBar"
        on: root.model.showsMenuBarExtra.on
        onToggled: root.model.showsMenuBarExtra.toggle()
    }

    FormRow {
        symbol: "macwindow"
        text: qsTr("Menu bar display")
        Accessible.ignored: true

        ChoicePicker {
            objectName: "settings.menuBarDisplayMode"
            choice: root.model.menuBarDisplayMode
            Accessible.name: qsTr("Menu bar display")
        }
    }

    ToggleRow {
        symbol: "rectangle.bottomhalf.inset.filled"
        text: qsTr("Hide window to menu bar with ⌘W")
        identifier: "settings.closeToMenuBar"
        on: root.model.closesWindowToMenuBar.on
        onToggled: root.model.closesWindowToMenuBar.toggle()
    }
}
