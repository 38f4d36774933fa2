#pragma once

#include "Platform/base/Instant.h"

#include <compare>
#include <map>
#include <span>
#include <vector>

namespace quillmere {

class WorkEntry;

/// One work entry as seen at a given moment.
struct ObservedWorkInterval {
    platform::Instant start;
    platform::Instant end;
    double breakSeconds = 0; ///< never longer than the interval

    friend auto operator<=>(const ObservedWorkInterval&, const ObservedWorkInterval&) = default;
};

/// Identifies an interval inside a cluster.
struct WorkIntervalKey {
    platform::Instant start;
    platform::Instant end;

    friend auto operator<=>(const WorkIntervalKey&, const WorkIntervalKey&) = default;
};

/// A maximal run of overlapping or touching intervals. Copies of one interval, as synchronised
/// devices can leave them, count their longest break once; different intervals add theirs.
struct WorkIntervalCluster {
    platform::Instant start;
    platform::Instant end;
    std::map<WorkIntervalKey, double> breakSecondsByInterval;

    /// The part of the run that was worked, 0 … 1. Precondition: `end` is after `start`.
    [[nodiscard]] double workedShare() const;
};

/// The entries as observed at `asOf`, merged. Entries that are empty or start later are left out.
[[nodiscard]] std::vector<WorkIntervalCluster> workClusters(std::span<WorkEntry* const> entries,
                                                            platform::Instant asOf);

} // namespace quillmere
