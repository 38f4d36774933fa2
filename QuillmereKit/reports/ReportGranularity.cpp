#include "QuillmereKit/reports/ReportGranularity.h"

#include <algorithm>

namespace quillmere {

using platform::Calendar;
using platform::Instant;

std::string_view rawValue(ReportGranularity granularity) {
    return granularity == ReportGranularity::week ? "week" : "month";
}

platform::DateInterval period(ReportGranularity granularity, Instant containing,
                              const Calendar& calendar) {
    if (!(Calendar::earliest <= containing && containing <= Calendar::latest)) {
        return {containing, containing};
    }
    return granularity == ReportGranularity::week ? calendar.weekInterval(containing)
                                                  : calendar.monthInterval(containing);
}

std::optional<Instant> addingPeriods(ReportGranularity granularity, Instant instant, int count,
                                     const Calendar& calendar) {
    return granularity == ReportGranularity::week ? calendar.addingDays(instant, 7 * count)
                                                  : calendar.addingMonths(instant, count);
}

std::optional<ReportGranularity> ReportGranularities::fromRawValue(std::string_view rawValue) {
    const auto* found = std::ranges::find(all, rawValue, [](ReportGranularity granularity) {
        return quillmere::rawValue(granularity);
    });
    return found == all.end() ? std::nullopt : std::optional(*found);
}

} // namespace quillmere
