#include "Quillmere/controls/Blur.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

namespace quillmere {

namespace {

struct Plane {
    int width;
    int height;
    std::vector<uchar> pixels = std::vector<uchar>(static_cast<std::size_t>(width * height));

    [[nodiscard]] uchar* line(int y) {
        return pixels.data() + static_cast<std::ptrdiff_t>(y) * width;
    }
};

Plane transposed(Plane& plane) {
    Plane result{plane.height, plane.width};
    for (int y = 0; y < plane.height; ++y) {
        const uchar* from = plane.line(y);
        for (int x = 0; x < plane.width; ++x) {
            result.line(x)[y] = from[x];
        }
    }
    return result;
}

// Every pixel becomes the mean of 2 · reach + 1 in its column. Line by line and without dividing,
// so that several columns are done at once.
void averageColumns(Plane& plane, int reach) {
    const auto window = static_cast<unsigned>(2 * reach + 1);
    const unsigned share = 65536 / window + 1;
    const auto width = static_cast<std::size_t>(plane.width);
    Plane result{plane.width, plane.height};
    std::vector<unsigned> sums(width, window / 2);
    for (int y = -reach; y < plane.height; ++y) {
        if (y + reach < plane.height) {
            const uchar* entering = plane.line(y + reach);
            for (std::size_t x = 0; x < width; ++x) {
                sums[x] += entering[x];
            }
        }
        if (y >= 0) {
            uchar* mean = result.line(y);
            for (std::size_t x = 0; x < width; ++x) {
                mean[x] = static_cast<uchar>(sums[x] * share >> 16U);
            }
        }
        if (y >= reach) {
            const uchar* leaving = plane.line(y - reach);
            for (std::size_t x = 0; x < width; ++x) {
                sums[x] -= leaving[x];
            }
        }
    }
    plane = std::move(result);
}

Plane blurredColumns(Plane plane, int reach) {
    for (int pass = 0; pass < 3; ++pass) {
        averageColumns(plane, reach);
    }
    return plane;
}

} // namespace

void blur(QImage& alpha, double deviation) {
    // Three boxes of width w have the variance (w² − 1) / 4.
    const double width = std::sqrt(4 * deviation * deviation + 1);
    const int reach = static_cast<int>(std::lround((width - 1) / 2));
    if (reach < 1) {
        return;
    }
    Plane plane{alpha.width(), alpha.height()};
    for (int y = 0; y < plane.height; ++y) {
        std::copy_n(alpha.constScanLine(y), plane.width, plane.line(y));
    }
    plane = blurredColumns(std::move(plane), reach);
    plane = blurredColumns(transposed(plane), reach);
    plane = transposed(plane);
    for (int y = 0; y < plane.height; ++y) {
        std::copy_n(plane.line(y), plane.width, alpha.scanLine(y));
    }
}

} // namespace quillmere
