#pragma once

#include "Platform/base/Instant.h"
#include "Platform/base/Uuid.h"
#include "Platform/store/Context.h"
#include "QuillmereKit/archive/TimeBankArchiveMergeResult.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quillmere {

class BalanceAdjustment;
class TimeBankSettings;
class WorkEntry;
class WorkSchedule;

/// A complete, portable copy of a time bank: every record of the four types, as one JSON document.
/// A value that holds copies; it outlives the records and may be handed to any thread.
///
/// The document is an object with the fields below under their names. Dates are numbers, seconds
/// since 1970, and read back bit for bit; identifiers are texts in canonical form; an absent value
/// is left out. It is indented, its keys are sorted, and so are its records: by their date, then
/// by identifier; settings by identifier alone.
struct TimeBankArchive {
    /// The format's version, the only one that is read.
    static constexpr std::int64_t currentSchemaVersion = 1;
    /// Limits of what is imported. The size is checked by whoever reads the file.
    static constexpr std::size_t maximumFileBytes = std::size_t{20} * 1024 * 1024;
    static constexpr std::size_t maximumWorkEntries = 100'000;
    static constexpr std::size_t maximumBalanceAdjustments = 100'000;
    static constexpr std::size_t maximumSchedules = 10'000;
    static constexpr std::size_t maximumSettings = 100;

    struct WorkEntryRecord {
        platform::Uuid id;
        platform::Instant startedAt;
        std::optional<platform::Instant> endedAt; ///< absent while the entry was running
        std::int64_t breakMinutes = 0;
        std::string note;
        platform::Instant createdAt;
        platform::Instant modifiedAt;

        friend bool operator==(const WorkEntryRecord&, const WorkEntryRecord&) = default;
    };

    struct BalanceAdjustmentRecord {
        platform::Uuid id;
        platform::Instant date;
        std::int64_t minutes = 0; ///< positive adds time, negative takes time
        std::string note;
        std::string kind; ///< the category's raw value
        platform::Instant createdAt;
        platform::Instant modifiedAt;

        friend bool operator==(const BalanceAdjustmentRecord&,
                               const BalanceAdjustmentRecord&) = default;
    };

    struct ScheduleRecord {
        platform::Uuid id;
        platform::Instant effectiveFrom;
        std::vector<std::int64_t> weekdayMinutes; ///< Monday … Sunday
        platform::Instant createdAt;
        platform::Instant modifiedAt;

        friend bool operator==(const ScheduleRecord&, const ScheduleRecord&) = default;
    };

    struct SettingsRecord {
        platform::Uuid id;
        platform::Instant calculationStartDate = {};
        std::int64_t startingBalanceMinutes = 0;
        std::vector<std::int64_t> weekdayMinutes; ///< Monday … Sunday
        /// The three that older archives lack; always present in one made from records.
        std::optional<std::vector<std::int64_t>> quickActionMinutes = {};
        std::optional<std::string> visibleAdjustmentKindsRawValue = {};
        std::optional<std::string> customAdjustmentCategoriesRawValue = {};
        bool hasCompletedOnboarding = false;
        platform::Instant modifiedAt;

        friend bool operator==(const SettingsRecord&, const SettingsRecord&) = default;
    };

    std::int64_t schemaVersion = currentSchemaVersion;
    platform::Instant exportedAt;
    std::vector<WorkEntryRecord> workEntries;
    std::vector<BalanceAdjustmentRecord> balanceAdjustments;
    std::vector<ScheduleRecord> schedules;
    std::vector<SettingsRecord> settings;

    /// An empty archive of the current version.
    TimeBankArchive() = default;

    /// Copies the records as they are and sorts them. Runs on the thread of their context.
    TimeBankArchive(platform::Instant exportedAt, std::span<WorkEntry* const> workEntries,
                    std::span<BalanceAdjustment* const> balanceAdjustments,
                    std::span<WorkSchedule* const> schedules,
                    std::span<TimeBankSettings* const> settings);

    /// Everything the store holds at one moment, unsaved changes of the context included. Runs on
    /// the context's thread; a worker brings a context of its own. Throws `StoreError`.
    [[nodiscard]] static TimeBankArchive ofStore(platform::store::Context& context,
                                                 platform::Instant exportedAt);

    /// Number of records of all four types.
    [[nodiscard]] std::size_t recordCount() const;

    /// The document. Any thread. Throws `TimeBankArchiveCodingError`.
    [[nodiscard]] std::string encodedJSON() const;

    /// Reads and validates a document. Unknown keys are ignored; null stands for an absent value;
    /// everything else must be as it is written, in strict JSON. Any thread. Throws
    /// `TimeBankArchiveCodingError` or what `validate` throws.
    [[nodiscard]] static TimeBankArchive decodeJSON(std::string_view bytes);

    /// Checks version, number of records, lengths of the lists of minutes, and that no identifier
    /// occurs twice among the records of a type, in this order. Values are not checked; `merge`
    /// brings them into their ranges. Throws `TimeBankArchiveError`.
    void validate() const;

    /// Why the import would refuse this archive as a file of `fileBytes` bytes, as a sentence for
    /// the user; nothing when it would not. Archives of very large stores are refused.
    [[nodiscard]] std::optional<std::string> importObstacle(std::size_t fileBytes) const;

    /// Merges the archive into a store, in one unit of work and with one save at its end. Records
    /// are matched by identifier: unknown ones are added, known ones replaced when the archive's
    /// was modified later by times that are not in the future of `now`; none is deleted for missing
    /// in the archive. Work that was running when the archive was made ends then. Duplicates in the
    /// store are reduced to the one modified last (a record modified before the year 1 is dropped),
    /// and every repair runs before the save.
    ///
    /// Runs on the context's thread; a worker brings a context of its own. Throws
    /// `TimeBankArchiveError` with nothing touched, or `StoreError`: the caller then rolls back;
    /// the store is as it was.
    TimeBankArchiveMergeResult merge(platform::store::Context& context,
                                     platform::Instant now) const;

    friend bool operator==(const TimeBankArchive&, const TimeBankArchive&) = default;
};

} // namespace quillmere
