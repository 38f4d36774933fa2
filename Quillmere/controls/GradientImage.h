#pragma once

#include <QtCore/QList>
#include <QtGui/QColor>
#include <QtGui/QImage>

namespace quillmere {

/// A linear gradient from the top left to the bottom right corner, evenly through its colours,
/// which are mixed with their opacity. What 8 bits a component lose is scattered, so that weak
/// gradients show no bands. Premultiplied; `colors` is not empty.
[[nodiscard]] QImage gradientImage(const QList<QColor>& colors, const QSize& pixels);

} // namespace quillmere
