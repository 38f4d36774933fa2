#pragma once

#include <QtCore/QRect>
#include <QtCore/QSize>

namespace quillmere {

/// Where the tray item's panel stands. `anchor` is what it belongs to: the item, or the pointer.
/// `available` is the part of that screen which no bar takes up.
namespace PanelPlacement {

/// Whether the panel stands over its anchor and grows upwards.
[[nodiscard]] bool opensUpwards(const QRect& anchor, const QRect& available);

/// How high the panel may become.
[[nodiscard]] int maximumHeight(const QRect& available);

/// The panel's place: beside the anchor, where the anchor is in a bar at the side of the screen;
/// over or under it else. Wholly in `available` unless it is larger. A panel keeps its middle and
/// the edge towards its anchor when it grows.
[[nodiscard]] QRect frame(const QSize& size, const QRect& anchor, const QRect& available);

} // namespace PanelPlacement

} // namespace quillmere
