#pragma once

#include "Platform/base/Instant.h"
#include "Platform/base/Uuid.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <functional>

namespace quillmere {

/// One record's version.
struct WidgetRecordRevision {
    platform::Uuid id;
    platform::Instant modifiedAt;

    friend bool operator==(const WidgetRecordRevision&, const WidgetRecordRevision&) = default;
};

} // namespace quillmere

/// Every bit of both fields counts, and versions of one record never share a hash.
template <>
struct std::hash<quillmere::WidgetRecordRevision> {
    std::size_t operator()(const quillmere::WidgetRecordRevision& revision) const noexcept {
        const auto id = std::bit_cast<std::array<std::uint64_t, 2>>(revision.id.bytes());
        const double modifiedAt = revision.modifiedAt.secondsSince1970 + 0.0; // -0 is 0
        return mixed(mixed(mixed(id[0]) ^ id[1]) ^ std::bit_cast<std::uint64_t>(modifiedAt));
    }

private:
    /// One to one, each bit depending on all others: the finisher of SplitMix64.
    static constexpr std::uint64_t mixed(std::uint64_t bits) {
        bits += 0x9E3779B97F4A7C15;
        bits = (bits ^ (bits >> 30)) * 0xBF58476D1CE4E5B9;
        bits = (bits ^ (bits >> 27)) * 0x94D049BB133111EB;
        return bits ^ (bits >> 31);
    }
};
