#pragma once

#include "QuillmereKit/archive/TimeBankArchive.h"
#include "QuillmereKit/records/AppConstants.h"

#include <cstdint>

namespace quillmere::benchmarks {

inline constexpr platform::Instant now{1'780'000'000};

/// A different identifier for every number, in no order.
inline platform::Uuid madeUpId(std::uint64_t number) {
    platform::Uuid::Bytes bytes{};
    std::uint64_t mixed = (number + 1) * 0x9e3779b97f4a7c15U;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes.at(i) = static_cast<std::uint8_t>(mixed >> (i % 8 * 8));
        mixed = i == 7 ? mixed * 0xbf58476d1ce4e5b9U : mixed;
    }
    return platform::Uuid(bytes);
}

/// An archive of as many records; nothing in it needs a repair. Modified `age` seconds before now.
inline TimeBankArchive madeUpArchive(std::size_t entries, std::size_t adjustments,
                                     std::size_t schedules, std::size_t settings, double age) {
    constexpr double day = 86'400;
    const platform::Instant modifiedAt = now - age;
    TimeBankArchive archive;
    archive.exportedAt = now;
    const auto before = [](std::size_t steps) {
        return now - 10'000 * day + static_cast<double>(steps) * 1'600.125;
    };
    for (std::size_t i = 0; i < entries; ++i) {
        archive.workEntries.push_back({madeUpId(i), before(i), before(i) + 1'200, 5,
                                       "A note of ordinary length", before(i), modifiedAt});
    }
    for (std::size_t i = 0; i < adjustments; ++i) {
        archive.balanceAdjustments.push_back(
            {madeUpId(i), before(i), static_cast<std::int64_t>(i % 480),
             "A note of ordinary length", "manual", before(i), modifiedAt});
    }
    archive.balanceAdjustments.front().id = AppConstants::manualLedgerMigrationAdjustmentID();
    for (std::size_t i = 0; i < schedules; ++i) {
        archive.schedules.push_back({madeUpId(i),
                                     {static_cast<double>(8'000 + i) * day},
                                     {480, 480, 480, 480, 480, 0, 0},
                                     modifiedAt,
                                     modifiedAt});
    }
    for (std::size_t i = 0; i < settings; ++i) {
        archive.settings.push_back({.id = madeUpId(i),
                                    .calculationStartDate = {12'000 * day},
                                    .startingBalanceMinutes = 60,
                                    .weekdayMinutes = {480, 480, 480, 480, 480, 0, 0},
                                    .hasCompletedOnboarding = true,
                                    .modifiedAt = modifiedAt});
    }
    return archive;
}

} // namespace quillmere::benchmarks
