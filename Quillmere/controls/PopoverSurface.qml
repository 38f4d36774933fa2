import QtQuick
import Quillmere.controls
import Quillmere.theme

// The ground of menus and popovers.
Surface {
    color: Theme.popover
    borderColor: Theme.controlBorder
    radius: Theme.popoverRadius
    shadowColor: Theme.deepShadow
    shadowBlur: 24
    shadowOffset: 6
}
