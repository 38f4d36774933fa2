#pragma once

#include "Quillmere/menubar/MenuBarIconEngine.h"
#include "Quillmere/menubar/MenuBarLabel.h"

namespace quillmere {

/// The label of an open store: the leaf, the balance, or both.
///
/// A tray gives a square of 16 pixels at worst, in which "+12:45" in one line is unreadable. The
/// balance stands in two lines, hours with their sign above minutes:
///
///     + 1 2        + 1 2
///     : 4 5        leaf 4 5
///
/// and the leaf, where it is shown with it, takes the place of the colon. Hours of five digits and
/// more are left to the tooltip: a dash stands for them, as for a balance that cannot be told.
class MenuBarLabelView final : public MenuBarIconEngine {
public:
    /// `label` must be available.
    explicit MenuBarLabelView(MenuBarLabel label);

    [[nodiscard]] QIconEngine* clone() const override { return new MenuBarLabelView(*this); }

protected:
    void draw(QPainter& painter, int side) const override;

private:
    void drawBalance(QPainter& painter, int side) const;
    void drawDash(QPainter& painter, int side) const;

    MenuBarLabel label_;
};

} // namespace quillmere
