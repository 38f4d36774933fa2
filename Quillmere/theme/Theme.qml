pragma Singleton

import QtQuick

QtObject {
    readonly property color accent: Qt.rgba(0.24, 0.72, 0.56, 1)
}
