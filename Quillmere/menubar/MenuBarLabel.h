#pragma once

#include "Quillmere/shell/MenuBarDisplayMode.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

namespace quillmere {

/// What the tray item says.
struct MenuBarLabel {
    Q_DECLARE_TR_FUNCTIONS(MenuBarLabel)

public:
    bool isAvailable = false; ///< false: no store is open, and there is no balance
    MenuBarDisplayMode mode = MenuBarDisplayMode::logoAndBalance; ///< what the icon shows
    QString balance;                                              ///< clock text with its sign
    QString spoken;                                               ///< the balance in words

    /// The balance in full, whatever the icon shows. Trays read it out as the item's name.
    [[nodiscard]] QString toolTip() const;
    /// The first line of the item's menu.
    [[nodiscard]] QString menuTitle() const;

    friend bool operator==(const MenuBarLabel&, const MenuBarLabel&) = default;
};

} // namespace quillmere
