#pragma once

#include <QtCore/QList>
#include <QtCore/QPoint>
#include <QtCore/QRect>

namespace quillmere {

/// Where a window stands that comes back.
namespace WindowPlacement {

/// The place of a window's top left corner. It stays where `frame` has it while its title bar,
/// which takes up the uppermost `titleHeight` of it, can be grabbed on one of the `screens`. Else
/// the window is moved in the directions in which that is not so, as little as brings it wholly
/// into a screen.
[[nodiscard]] QPoint place(const QRect& frame, int titleHeight, const QList<QRect>& screens);

} // namespace WindowPlacement

} // namespace quillmere
