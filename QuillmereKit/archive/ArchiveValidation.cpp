#include "QuillmereKit/archive/TimeBankArchive.h"
#include "QuillmereKit/archive/TimeBankArchiveError.h"
#include "QuillmereKit/records/WeekdayMinutes.h"
#include "QuillmereKit/rules/QuickActionConfiguration.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <tuple>

namespace quillmere {

namespace {

using Reason = TimeBankArchiveError::Reason;

void require(bool condition, Reason reason) {
    if (!condition) {
        throw TimeBankArchiveError(reason);
    }
}

template <class Record>
bool hasWholeWeek(const Record& record) {
    return record.weekdayMinutes.size() == std::tuple_size_v<WeekdayMinutes>;
}

bool hasProperQuickActions(const TimeBankArchive::SettingsRecord& record) {
    return !record.quickActionMinutes || record.quickActionMinutes->size() ==
                                             std::tuple_size_v<QuickActionConfiguration::Presets>;
}

/// Sorting bounds what identifiers made to collide could cost; any order will do, and this one is
/// the quickest.
template <class Record>
bool hasUniqueIdentifiers(const std::vector<Record>& records) {
    std::vector<platform::Uuid> identifiers(records.size());
    std::ranges::transform(records, identifiers.begin(), &Record::id);
    std::ranges::sort(identifiers, {}, [](const platform::Uuid& id) {
        return std::bit_cast<std::array<std::uint64_t, 2>>(id.bytes());
    });
    return std::ranges::adjacent_find(identifiers) == identifiers.end();
}

bool hasAllowedCounts(const TimeBankArchive& archive) {
    return archive.workEntries.size() <= TimeBankArchive::maximumWorkEntries &&
           archive.balanceAdjustments.size() <= TimeBankArchive::maximumBalanceAdjustments &&
           archive.schedules.size() <= TimeBankArchive::maximumSchedules &&
           archive.settings.size() <= TimeBankArchive::maximumSettings;
}

} // namespace

void TimeBankArchive::validate() const {
    if (schemaVersion != currentSchemaVersion) {
        throw TimeBankArchiveError::unsupportedSchema(schemaVersion);
    }
    require(hasAllowedCounts(*this), Reason::tooManyRecords);
    require(std::ranges::all_of(schedules, hasWholeWeek<ScheduleRecord>) &&
                std::ranges::all_of(settings, hasWholeWeek<SettingsRecord>),
            Reason::malformedSchedule);
    require(std::ranges::all_of(settings, hasProperQuickActions), Reason::malformedQuickActions);
    require(hasUniqueIdentifiers(workEntries) && hasUniqueIdentifiers(balanceAdjustments) &&
                hasUniqueIdentifiers(schedules) && hasUniqueIdentifiers(settings),
            Reason::duplicateIdentifiers);
}

std::optional<std::string> TimeBankArchive::importObstacle(std::size_t fileBytes) const try {
    validate();
    return fileBytes > maximumFileBytes
               ? std::optional<std::string>("This archive is larger than the 20 MB that can be "
                                            "imported.")
               : std::nullopt;
} catch (const TimeBankArchiveError& error) {
    return error.what();
}

} // namespace quillmere
