#pragma once

#include "Platform/base/Instant.h"
#include "QuillmereKit/archive/TimeBankArchive.h"
#include "QuillmereKit/records/BalanceAdjustment.h"
#include "QuillmereKit/records/RecordTimestampValidation.h"
#include "QuillmereKit/records/TimeBankSettings.h"
#include "QuillmereKit/records/WorkEntry.h"
#include "QuillmereKit/records/WorkSchedule.h"

#include <memory>

namespace quillmere {

/// How the records of an archive enter a store: `make` for new ones, `replace` for known ones. Both
/// bring values into their ranges, and times that lie in the future back to the present.
class ArchivedRecordImport {
public:
    ArchivedRecordImport(platform::Instant exportedAt, platform::Instant now);

    /// When the record was modified, in order.
    template <class ArchivedRecord>
    [[nodiscard]] platform::Instant modifiedAt(const ArchivedRecord& record) const {
        return RecordTimestampValidation::normalizedModifiedAt(record.modifiedAt, now_);
    }

    using Entry = TimeBankArchive::WorkEntryRecord;
    /// An end before the start stays one.
    [[nodiscard]] std::unique_ptr<WorkEntry> make(const Entry& record) const;
    void replace(WorkEntry& stored, const Entry& record) const;

    using Adjustment = TimeBankArchive::BalanceAdjustmentRecord;
    [[nodiscard]] std::unique_ptr<BalanceAdjustment> make(const Adjustment& record) const;
    void replace(BalanceAdjustment& stored, const Adjustment& record) const;

    using Schedule = TimeBankArchive::ScheduleRecord;
    [[nodiscard]] std::unique_ptr<WorkSchedule> make(const Schedule& record) const;
    void replace(WorkSchedule& stored, const Schedule& record) const;

    using Settings = TimeBankArchive::SettingsRecord;
    [[nodiscard]] std::unique_ptr<TimeBankSettings> make(const Settings& record) const;
    void replace(TimeBankSettings& stored, const Settings& record) const;

private:
    template <class ArchivedRecord>
    [[nodiscard]] platform::Instant createdAt(const ArchivedRecord& record) const {
        return RecordTimestampValidation::normalizedCreatedAt(record.createdAt, modifiedAt(record));
    }
    [[nodiscard]] WorkEntryValues values(const Entry& record) const;
    [[nodiscard]] BalanceAdjustmentValues values(const Adjustment& record) const;

    platform::Instant exportedAt_;
    platform::Instant now_;
};

} // namespace quillmere
