#include "Quillmere/controls/Blur.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace quillmere {

namespace {

// The mean over 2 · reach + 1 pixels along a line of `count` pixels `stride` bytes apart.
void boxPass(uchar* line, int count, qsizetype stride, int reach, std::vector<uchar>& scratch) {
    const int window = 2 * reach + 1;
    int sum = 0;
    for (int i = 0; i < std::min(reach, count); ++i) {
        sum += line[i * stride];
    }
    for (int i = 0; i < count; ++i) {
        sum += i + reach < count ? line[(i + reach) * stride] : 0;
        scratch[static_cast<std::size_t>(i)] = static_cast<uchar>((sum + window / 2) / window);
        sum -= i - reach >= 0 ? line[(i - reach) * stride] : 0;
    }
    for (int i = 0; i < count; ++i) {
        line[i * stride] = scratch[static_cast<std::size_t>(i)];
    }
}

} // namespace

void blur(QImage& alpha, double deviation) {
    // Three boxes of width w have the variance (w² − 1) / 4.
    const double width = std::sqrt(4 * deviation * deviation + 1);
    const int reach = static_cast<int>(std::lround((width - 1) / 2));
    if (reach < 1) {
        return;
    }
    std::vector<uchar> scratch(static_cast<std::size_t>(std::max(alpha.width(), alpha.height())));
    for (int pass = 0; pass < 3; ++pass) {
        for (int y = 0; y < alpha.height(); ++y) {
            boxPass(alpha.scanLine(y), alpha.width(), 1, reach, scratch);
        }
        for (int x = 0; x < alpha.width(); ++x) {
            boxPass(alpha.bits() + x, alpha.height(), alpha.bytesPerLine(), reach, scratch);
        }
    }
}

} // namespace quillmere
