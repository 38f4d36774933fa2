#pragma once

#include <QtGui/QImage>

namespace quillmere {

/// Blurs an image of one channel of 8 bits in place, nearly as a Gaussian of the given standard
/// deviation in pixels does (three passes of a box). What lies outside of the image counts as 0.
void blur(QImage& alpha, double deviation);

} // namespace quillmere
