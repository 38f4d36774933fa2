import QtQuick
import Quillmere.theme

Window { visible: true; color: Theme.accent; width: 100; height: 100; Component.onCompleted: { console.log(Theme.accent); Qt.quit() } }
