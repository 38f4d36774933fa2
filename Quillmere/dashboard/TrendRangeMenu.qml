import QtQuick
import Quillmere.controls

// The choice of how far the balance history reaches back.
MenuButton {
    required property list<string> titles
    required property int currentIndex

    signal chosen(index: int)

    text: qsTr("Balance history")
    Accessible.name: qsTr("Balance history range")
    menuSource: Qt.resolvedUrl("TrendRangePopup.qml")
}
