#pragma once

#include "QuillmereKit/archive/TimeBankArchive.h"
#include "tests/QuillmereKit/KitTest.h"

#include <array>
#include <random>

namespace quillmere::test {

/// Archives of odd records: values out of range, times in the future and at the ends of time,
/// identifiers that meet. The same seed gives the same archive.
class RandomTimeBank {
public:
    RandomTimeBank(unsigned seed, Instant now) : random_(seed), now_(now) {}

    TimeBankArchive archive() {
        TimeBankArchive archive;
        archive.exportedAt = now_ - static_cast<double>(below(1000)) * hour;
        for (std::uint8_t id = 0; id < 40; ++id) {
            if (below(2) == 0) {
                archive.workEntries.push_back(
                    {uuid(id), instant(), below(3) == 0 ? std::nullopt : std::optional(instant()),
                     number(), note(), instant(), instant()});
            }
            if (below(2) == 0) {
                archive.balanceAdjustments.push_back(
                    {uuid(id), instant(), number(), note(), kind(), instant(), instant()});
            }
            if (below(4) == 0) {
                archive.schedules.push_back({uuid(id), onDayOf(id), week(), instant(), instant()});
            }
            if (below(15) == 0) {
                archive.settings.push_back(settings(uuid(id)));
            }
        }
        return archive;
    }

private:
    std::uint64_t below(std::uint64_t limit) { return random_() % limit; }

    template <class T, std::size_t Count>
    const T& oneOf(const std::array<T, Count>& choices) {
        return choices.at(below(Count));
    }

    Instant instant() {
        const std::array<Instant, 7> odd{Instant{0},          {-1e300},    {1e300},
                                         {-62'135'596'800.0}, {0.1 + 0.2}, now_ + 301,
                                         now_ - 0.000'001};
        return below(3) == 0 ? oneOf(odd) : now_ - static_cast<double>(below(900)) * 7.3 * hour;
    }

    /// Copies of a schedule apply from one day on, which few schedules share.
    Instant onDayOf(int id) {
        const int days = id / 3;
        return berlinCalendar.startOfDay(now_ - days * day) + static_cast<double>(below(20)) * hour;
    }

    std::int64_t number() {
        constexpr std::array<std::int64_t, 6> odd{0,
                                                  -1,
                                                  1441,
                                                  -70'000,
                                                  std::numeric_limits<std::int64_t>::max(),
                                                  std::numeric_limits<std::int64_t>::min()};
        return below(3) == 0 ? oneOf(odd) : static_cast<std::int64_t>(below(480)) - 240;
    }

    std::vector<std::int64_t> week() { return {number(), number(), 480, 480, 480, number(), 0}; }

    std::string note() {
        const std::array<std::string, 6> notes{"",
                                               " a/b\n",
                                               std::string(300, 'x'),
                                               "\"\\\u0001\t",
                                               "Mu\u0308ller \u05d0 \U0001F468",
                                               std::string(1, '\0')};
        return oneOf(notes);
    }

    std::string kind() {
        static const std::array<std::string, 6> kinds{"manual",      "holiday",  "longLunch",
                                                      "custom:R3lt", "custom:!", "bogus"};
        return oneOf(kinds);
    }

    TimeBankArchive::SettingsRecord settings(Uuid id) {
        TimeBankArchive::SettingsRecord record{.id = id,
                                               .calculationStartDate = instant(),
                                               .startingBalanceMinutes = number(),
                                               .weekdayMinutes = week(),
                                               .hasCompletedOnboarding = below(2) == 0,
                                               .modifiedAt = instant()};
        if (below(2) == 0) {
            record.quickActionMinutes = {number(), 7, 90, 1000};
            record.visibleAdjustmentKindsRawValue = "other,bogus,appointment";
            record.customAdjustmentCategoriesRawValue = R"(["Gym","gym"," Dentist "])";
        }
        return record;
    }

    std::mt19937 random_;
    Instant now_;
};

} // namespace quillmere::test
