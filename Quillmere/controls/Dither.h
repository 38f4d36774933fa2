#pragma once

#include <QtGui/QImage>

namespace quillmere {

/// An image of `Format_RGBA64_Premultiplied` with 8 bits a component, with what is lost scattered,
/// so that weak gradients show no bands.
[[nodiscard]] QImage dithered(const QImage& deep);

} // namespace quillmere
