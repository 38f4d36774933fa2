#pragma once

#include "Quillmere/menubar/MenuBarIconEngine.h"

namespace quillmere {

/// The label while no store is open.
class UnavailableMenuBarLabelView final : public MenuBarIconEngine {
public:
    UnavailableMenuBarLabelView();

    [[nodiscard]] QIconEngine* clone() const override {
        return new UnavailableMenuBarLabelView(*this);
    }

protected:
    void draw(QPainter& painter, int side) const override;
};

} // namespace quillmere
