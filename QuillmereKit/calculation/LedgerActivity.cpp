#include "QuillmereKit/calculation/LedgerActivity.h"

#include <algorithm>

namespace quillmere::LedgerActivity {

double secondsToday(std::span<const LedgerRow> adjustments, platform::Instant now,
                    const platform::Calendar& calendar) {
    constexpr double longestDay = 49 * 3600.0; // a date that a zone repeated, with its hour
    const platform::Instant today = calendar.startOfDay(now);
    auto row = std::ranges::partition_point(adjustments, [today](const LedgerRow& candidate) {
        return candidate.date > today + longestDay;
    });
    double seconds = 0;
    for (; row != adjustments.end() && row->date >= today; ++row) {
        if (calendar.isSameDay(row->date, today)) {
            seconds += static_cast<double>(row->minutes) * 60.0;
        }
    }
    return seconds;
}

std::vector<LedgerRow> recentItems(std::span<const LedgerRow> adjustments,
                                   const std::optional<LedgerRow>& lastTransaction) {
    std::vector<LedgerRow> items;
    for (auto row = adjustments.begin(); row != adjustments.end() && items.size() < recentItemCount;
         ++row) {
        if (row->isListed) {
            items.push_back(*row);
        }
    }
    const auto isLast = [&](const LedgerRow& row) {
        return row.isListed && row.id == lastTransaction->id;
    };
    if (lastTransaction && std::ranges::none_of(adjustments, isLast)) {
        items.push_back(*lastTransaction);
        std::ranges::sort(items, [](const LedgerRow& a, const LedgerRow& b) { return a < b; });
        items.resize(std::min(items.size(), recentItemCount));
    }
    return items;
}

} // namespace quillmere::LedgerActivity
