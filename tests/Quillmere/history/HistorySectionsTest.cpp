#include "Quillmere/history/HistorySections.h"

#include "Platform/store/RowList.h"

#include <gtest/gtest.h>

#include <random>

namespace quillmere {

namespace {

using platform::Instant;
using platform::store::ListStep;
using platform::store::RowKey;

constexpr double hour = 3600;

platform::Calendar calendarOf(const char* zone) {
    return {platform::TimeZone::named(zone).value(), {}};
}

LedgerRow change(std::int64_t key, Instant date, bool isListed = true) {
    LedgerRow row;
    row.ref = RowKey{key};
    row.date = date;
    row.isListed = isListed;
    return row;
}

/// The keys of the rows, a "|" between days.
std::string described(const HistorySections& sections) {
    std::string text;
    const HistorySections::Row* before = nullptr;
    for (const auto& row : sections.rows()) {
        text += before ? before->day == row.day ? " " : " | " : "";
        text += std::to_string(static_cast<std::int64_t>(row.ref));
        before = &row;
    }
    return text;
}

/// What a model shows that takes each row from where the steps say it is.
std::vector<HistorySections::Row> replayed(std::vector<HistorySections::Row> shown,
                                           const platform::store::ListSteps& steps,
                                           const std::vector<HistorySections::Row>& rows) {
    for (const ListStep& step : steps) {
        const auto at = static_cast<std::ptrdiff_t>(step.index);
        const auto count = static_cast<std::ptrdiff_t>(step.count);
        switch (step.kind) {
        case ListStep::Kind::remove:
            shown.erase(shown.begin() + at, shown.begin() + at + count);
            break;
        case ListStep::Kind::insert:
            shown.insert(shown.begin() + at, rows.begin() + at, rows.begin() + at + count);
            break;
        case ListStep::Kind::update:
            std::copy_n(rows.begin() + at, count, shown.begin() + at);
            break;
        }
    }
    return shown;
}

} // namespace

TEST(HistorySections, GroupByTheDayOfTheZone) {
    const Instant noon{1289131200};   // 2010-11-07 12:00 UTC
    const Instant clocks{1289097060}; // 02:31 UTC: St. John's goes back from 00:01 to 23:01
    struct Case {
        const char* name;
        const char* zone;
        std::vector<LedgerRow> changes;
        const char* sections;
    };
    for (const Case& one : std::vector<Case>{
             {"nothing", "UTC", {}, ""},
             {"two days",
              "UTC",
              {change(3, noon), change(2, noon - 11 * hour), change(1, noon - 13 * hour)},
              "3 2 | 1"},
             {"the same further west",
              "America/New_York",
              {change(3, noon), change(2, noon - 11 * hour), change(1, noon - 13 * hour)},
              "3 | 2 1"},
             {"what is not listed",
              "UTC",
              {change(3, noon), change(2, noon - 11 * hour, false), change(1, noon - 30 * hour)},
              "3 | 1"},
             {"an hour that comes twice across midnight",
              "America/St_Johns",
              {change(5, clocks + 2 * hour), change(4, clocks + hour / 2), change(3, clocks - 30),
               change(2, clocks - 90), change(1, clocks - hour)},
              "5 3 | 4 2 1"},
             {"dates at both ends of time",
              "UTC",
              {change(4, Instant{1e300}), change(3, noon), change(2, Instant{-1e300}),
               change(1, Instant{-1e308})},
              "4 | 3 | 2 1"},
         }) {
        SCOPED_TRACE(one.name);
        EXPECT_EQ(described({one.changes, calendarOf(one.zone)}), one.sections);
    }
}

// Whatever is inserted, deleted, dated anew or hidden: the steps lead from the rows before to those
// that a fresh look finds, and each change costs at most its own row.
TEST(HistorySections, FollowAnySequenceOfChanges) {
    const auto calendar = calendarOf("America/St_Johns");
    const Instant clocks{1289097060};
    std::mt19937 random(7);
    const auto upTo = [&](int count) {
        return std::uniform_int_distribution<int>(0, count - 1)(random);
    };
    platform::store::RowList<LedgerRow> list;
    HistorySections sections(list.rows(), calendar);
    for (int round = 0; round < 400; ++round) {
        std::vector<platform::store::RowList<LedgerRow>::Change> changes;
        for (int i = upTo(4); i >= 0; --i) {
            const RowKey key{upTo(40) + 1};
            std::optional<LedgerRow> next;
            if (upTo(4) != 0) {
                next = change(static_cast<std::int64_t>(key), clocks + (upTo(96) - 48) * hour / 2,
                              upTo(5) != 0);
            }
            changes.push_back({key, key, next});
        }
        const auto before = sections.rows();
        const auto steps = sections.update(list.rows(), list.apply(changes));
        ASSERT_EQ(sections.rows(), HistorySections(list.rows(), calendar).rows());
        ASSERT_EQ(replayed(before, steps, sections.rows()), sections.rows());
        std::size_t moved = 0;
        for (const ListStep& step : steps) {
            moved += step.kind == ListStep::Kind::update ? 0 : step.count;
        }
        ASSERT_LE(moved, 2 * changes.size());
    }
}

} // namespace quillmere
