#include "Quillmere/menubar/MenuBarLabel.h"

namespace quillmere {

QString MenuBarLabel::toolTip() const {
    return isAvailable ? tr("Quillmere time bank: %1").arg(spoken) : tr("Quillmere unavailable");
}

QString MenuBarLabel::menuTitle() const {
    return isAvailable ? tr("Available flex time: %1").arg(balance) : tr("Quillmere unavailable");
}

} // namespace quillmere
