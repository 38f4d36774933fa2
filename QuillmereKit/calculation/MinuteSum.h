#pragma once

#include <cstddef>
#include <cstdint>

namespace quillmere {

/// A sum of minutes that knows whether it is exact: whether adding the same amounts as seconds in
/// doubles, in any order, gives the same value without rounding. Whole numbers add faster, and
/// parts of a history can then be summed apart.
class MinuteSum {
public:
    void add(std::int64_t minutes) {
        sum_ += static_cast<std::uint64_t>(minutes);
        magnitudes_ |= static_cast<std::uint64_t>(minutes ^ (minutes >> 63));
        ++count_;
    }

    /// Every partial sum lies below 2^53 seconds, where doubles hold all whole numbers.
    [[nodiscard]] bool isExact() const {
        const double largest = static_cast<double>(magnitudes_) + 1;
        return largest * static_cast<double>(count_) * 60 < 0x1p53;
    }

    /// Precondition: `isExact`.
    [[nodiscard]] double seconds() const {
        return static_cast<double>(static_cast<std::int64_t>(sum_)) * 60;
    }

private:
    std::uint64_t sum_ = 0; ///< modulo 2^64
    std::uint64_t magnitudes_ = 0;
    std::size_t count_ = 0;
};

} // namespace quillmere
