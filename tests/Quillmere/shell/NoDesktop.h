#pragma once

#include "Quillmere/shell/DesktopSettings.h"

namespace quillmere {

/// A desktop that wants nothing but stillness.
class NoDesktop final : public DesktopSettings {
public:
    [[nodiscard]] DesktopLook look() const override {
        return {.prefersDark = {}, .highContrast = false, .reducedMotion = true};
    }
};

} // namespace quillmere
