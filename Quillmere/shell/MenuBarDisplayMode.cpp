#include "Quillmere/shell/MenuBarDisplayMode.h"

#include <algorithm>

namespace quillmere {

std::string_view rawValue(MenuBarDisplayMode mode) {
    switch (mode) {
    case MenuBarDisplayMode::logoOnly:
        return "logoOnly";
    case MenuBarDisplayMode::balanceOnly:
        return "balanceOnly";
    case MenuBarDisplayMode::logoAndBalance:
        break;
    }
    return "logoAndBalance";
}

std::string_view title(MenuBarDisplayMode mode) {
    switch (mode) {
    case MenuBarDisplayMode::logoOnly:
        return "Logo only";
    case MenuBarDisplayMode::balanceOnly:
        return "Available flex time only";
    case MenuBarDisplayMode::logoAndBalance:
        break;
    }
    return "Logo + available flex time";
}

MenuBarDisplayMode MenuBarDisplayModes::of(std::string_view storedValue) {
    const auto* found = std::ranges::find_if(
        all, [storedValue](MenuBarDisplayMode mode) { return rawValue(mode) == storedValue; });
    return found == all.end() ? MenuBarDisplayMode::logoAndBalance : *found;
}

} // namespace quillmere
