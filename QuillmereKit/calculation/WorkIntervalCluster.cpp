#include "QuillmereKit/calculation/WorkIntervalCluster.h"

#include "QuillmereKit/records/WorkEntry.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace quillmere {

namespace {

std::optional<ObservedWorkInterval> observed(const WorkEntry& entry, platform::Instant asOf) {
    const platform::Instant start = entry.startedAt();
    const platform::Instant end = std::min(entry.endedAt().value_or(asOf), asOf);
    if (!(end > start && start <= asOf)) {
        return std::nullopt;
    }
    const double breakSeconds =
        static_cast<double>(std::max<std::int64_t>(entry.breakMinutes(), 0)) * 60;
    return ObservedWorkInterval{start, end, std::min(breakSeconds, end - start)};
}

std::vector<ObservedWorkInterval> observedInOrder(std::span<WorkEntry* const> entries,
                                                  platform::Instant asOf) {
    std::vector<ObservedWorkInterval> intervals;
    for (const WorkEntry* entry : entries) {
        if (const auto interval = observed(*entry, asOf)) {
            intervals.push_back(*interval);
        }
    }
    std::ranges::stable_sort(intervals, [](const auto& a, const auto& b) { return a < b; });
    return intervals;
}

} // namespace

double WorkIntervalCluster::workedShare() const {
    double totalBreak = 0;
    for (const auto& [key, seconds] : breakSecondsByInterval) {
        totalBreak += seconds;
    }
    const double duration = end - start;
    const bool isEndless = std::isinf(duration); // no break is a part of it
    return isEndless ? 1 : std::clamp((duration - totalBreak) / duration, 0.0, 1.0);
}

std::vector<WorkIntervalCluster> workClusters(std::span<WorkEntry* const> entries,
                                              platform::Instant asOf) {
    std::vector<WorkIntervalCluster> clusters;
    for (const ObservedWorkInterval& interval : observedInOrder(entries, asOf)) {
        if (clusters.empty() || interval.start > clusters.back().end) {
            clusters.push_back({interval.start, interval.end, {}});
        }
        WorkIntervalCluster& cluster = clusters.back();
        cluster.end = std::max(cluster.end, interval.end);
        double& longest = cluster.breakSecondsByInterval[{interval.start, interval.end}];
        longest = std::max(longest, interval.breakSeconds);
    }
    return clusters;
}

} // namespace quillmere
