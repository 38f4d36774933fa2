import QtQuick
import Quillmere.app
import Quillmere.menubar
import Quillmere.shell

// The tray panel's content on an open store.
AppRootContainer {
    id: root

    required property MenuBarRootViewModel scene
    required property MenuBarPanel panel

    implicitWidth: view.implicitWidth
    implicitHeight: view.implicitHeight + bannerHeight
    focus: true

    MenuBarRootView {
        id: view

        anchors.fill: parent
        focus: true
        model: root.scene
        opensUpwards: root.panel.opensUpwards
        maximumHeight: root.panel.maximumHeight - root.bannerHeight
        onOpenAppChosen: root.panel.openMainWindow()
        onQuitChosen: root.panel.quitRequested()
    }
}
