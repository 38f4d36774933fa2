import QtQuick
import QtQuick.Templates as T

// Remembers who has the keyboard while a popup takes it, and gives it back with the ring it had.
QtObject {
    id: root

    property Item opener: null
    property bool ringShown: false

    function take(focused: Item): void {
        root.opener = focused;
        const control = focused as T.Control;
        root.ringShown = control !== null && control.visualFocus;
    }

    // Leaves the keyboard where the user has put it meanwhile: nobody has it when the window's root
    // item has.
    function giveBack(focused: Item): void {
        const opener = root.opener;
        root.opener = null;
        const taken = focused !== null && focused.parent !== null && focused !== opener;
        if (!opener || !opener.visible || !opener.enabled || taken)
            return;
        opener.forceActiveFocus(Qt.PopupFocusReason);
        if (root.ringShown)
            (opener as T.Control).focusReason = Qt.TabFocusReason;
    }
}
