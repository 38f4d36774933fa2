#include "Platform/calendar/DayTable.h"
#include "QuillmereKit/calculation/TimeBankCalculator.h"
#include "QuillmereKit/calculation/TimeBankDateBounds.h"
#include "QuillmereKit/calculation/WorkIntervalCluster.h"
#include "QuillmereKit/calculation/WorkPlan.h"
#include "QuillmereKit/records/BalanceAdjustment.h"
#include "QuillmereKit/records/TimeBankSettings.h"
#include "QuillmereKit/records/WorkEntry.h"

#include <algorithm>
#include <optional>

namespace quillmere::TimeBankCalculator {

namespace {

using platform::DayTable;
using platform::Instant;

/// Start of the day after the one at `index`.
Instant dayEnd(const DayTable& table, std::size_t index) {
    return index + 1 < table.size() ? table.start(index + 1) : table.end();
}

void addAdjustments(std::vector<DayBalance>& days, const DayTable& table,
                    std::span<BalanceAdjustment* const> adjustments) {
    for (const BalanceAdjustment* adjustment : adjustments) {
        const Instant date = adjustment->date();
        if (table.start(0) <= date && date < table.end()) {
            days[table.indexOf(date)].adjustmentSeconds +=
                static_cast<double>(adjustment->minutes()) * 60.0;
        }
    }
}

/// Spreads a cluster's worked time over its days, breaks in proportion.
void addCluster(std::vector<DayBalance>& days, const DayTable& table,
                const WorkIntervalCluster& cluster) {
    const double share = cluster.workedShare();
    const Instant from = std::max(cluster.start, table.start(0));
    if (!(from < table.end())) {
        return;
    }
    for (std::size_t i = table.indexOf(from); i < days.size() && table.start(i) < cluster.end;
         ++i) {
        const double seconds =
            std::min(dayEnd(table, i), cluster.end) - std::max(table.start(i), cluster.start);
        days[i].workedSeconds += share * std::max(seconds, 0.0);
    }
}

} // namespace

std::vector<DayBalance> dayBalances(std::span<WorkEntry* const> entries,
                                    std::span<BalanceAdjustment* const> adjustments,
                                    std::span<WorkSchedule* const> schedules,
                                    const TimeBankSettings& settings, Instant through,
                                    const platform::Calendar& calendar) {
    const Instant start = std::max(TimeBankDateBounds::earliestCalculationDate(calendar),
                                   settings.calculationStartDate());
    const DayTable table(calendar, calendar.startOfDay(start), through);
    std::vector<DayBalance> days(table.size());
    if (days.empty()) {
        return days;
    }
    const WorkPlan plan(settings, schedules, calendar);
    for (std::size_t i = 0; i < days.size(); ++i) {
        days[i].date = table.start(i);
        days[i].expectedSeconds = static_cast<double>(plan.scheduledMinutes(table.start(i))) * 60;
    }
    addAdjustments(days, table, adjustments);
    for (const WorkIntervalCluster& cluster : workClusters(entries, through)) {
        addCluster(days, table, cluster);
    }
    return days;
}

double balanceSeconds(std::span<WorkEntry* const> entries,
                      std::span<BalanceAdjustment* const> adjustments,
                      std::span<WorkSchedule* const> schedules, const TimeBankSettings& settings,
                      Instant through, const platform::Calendar& calendar) {
    double sum = 0;
    for (const DayBalance& day :
         dayBalances(entries, adjustments, schedules, settings, through, calendar)) {
        sum += day.balanceSeconds();
    }
    return static_cast<double>(settings.startingBalanceMinutes()) * 60.0 + sum;
}

std::int64_t scheduledMinutes(Instant on, const TimeBankSettings& settings,
                              std::span<WorkSchedule* const> schedules,
                              const platform::Calendar& calendar) {
    return WorkPlan(settings, schedules, calendar).scheduledMinutes(on);
}

double workedSeconds(const WorkEntry& entry, platform::DateInterval during, Instant asOf) {
    const Instant end = std::min(entry.endedAt().value_or(asOf), asOf);
    if (!(end > entry.startedAt())) {
        return 0;
    }
    const double overlap = std::min(end, during.end) - std::max(entry.startedAt(), during.start);
    if (!(overlap > 0)) {
        return 0;
    }
    const double share = overlap / (end - entry.startedAt());
    const double breakSeconds =
        static_cast<double>(std::max<std::int64_t>(entry.breakMinutes(), 0)) * 60;
    return std::max(overlap - share * breakSeconds, 0.0);
}

} // namespace quillmere::TimeBankCalculator
