#pragma once

#include <QtGui/QColor>
#include <QtGui/QImage>

namespace quillmere {

/// The symbol as a square image of the given side in device pixels, in one colour on nothing.
/// Images are kept and shared. Safe to call on any thread.
[[nodiscard]] QImage symbolImage(const QString& name, int pixels, const QColor& color);

} // namespace quillmere
