#pragma once

#include "Platform/calendar/Calendar.h"
#include "QuillmereKit/records/LedgerRow.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

namespace quillmere::benchmarks {

inline constexpr platform::Instant now{1'780'000'000}; // 28 May 2026
inline constexpr double secondsADay = 86'400;
inline constexpr std::size_t changeCount = 100'000;

inline platform::Calendar berlin() {
    return {platform::TimeZone::named("Europe/Berlin").value(),
            platform::Region::fromLocale("de_DE")};
}

/// 100,000 changes, evenly over this many seconds before now, newest first.
inline std::vector<LedgerRow> makeRows(std::uint64_t seconds) {
    std::mt19937_64 random(1);
    std::vector<LedgerRow> rows;
    BalanceAdjustmentValues values;
    for (std::size_t i = 0; i < changeCount; ++i) {
        values.id = platform::Uuid::random();
        values.date = now - static_cast<double>(random() % seconds);
        values.minutes = static_cast<std::int64_t>(random() % 2881) - 1440;
        rows.push_back(LedgerRow::make(platform::store::RowRef{1}, values).value());
    }
    std::ranges::sort(rows, [](const LedgerRow& a, const LedgerRow& b) { return a < b; });
    return rows;
}

inline const std::vector<LedgerRow>& fiveYears() {
    static const std::vector<LedgerRow> shared = makeRows(157'680'000);
    return shared;
}

/// The columns a sum needs and nothing else.
struct Columns {
    std::vector<double> dates;
    std::vector<std::int64_t> minutes;

    explicit Columns(const std::vector<LedgerRow>& rows) {
        for (const LedgerRow& row : rows) {
            dates.push_back(row.date.secondsSince1970);
            minutes.push_back(row.minutes);
        }
    }
};

} // namespace quillmere::benchmarks
