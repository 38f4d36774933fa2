#include "QuillmereKit/archive/ArchivedRecordImport.h"
#include "QuillmereKit/archive/RecordIndex.h"
#include "QuillmereKit/archive/TimeBankArchive.h"
#include "QuillmereKit/maintenance/DataStoreMaintenance.h"
#include "QuillmereKit/sessions/TimerSessionController.h"

namespace quillmere {

namespace {

using platform::Instant;
using platform::store::Context;

/// One merge under way, up to the repairs.
class ArchiveMerge {
public:
    /// Brings the store's own records in order first.
    ArchiveMerge(Context& context, Instant exportedAt, Instant now)
        : context_(context),
          import_(exportedAt, now),
          entries_(context, now),
          adjustments_(context, now),
          schedules_(context, now),
          settings_(context, now) {}

    TimeBankArchiveMergeResult run(const TimeBankArchive& archive) {
        merge(archive.workEntries, entries_);
        merge(archive.balanceAdjustments, adjustments_);
        merge(archive.schedules, schedules_);
        merge(archive.settings, settings_);
        return result_;
    }

private:
    template <class ArchivedRecord, class R>
    void merge(const std::vector<ArchivedRecord>& records, const RecordIndex<R>& known) {
        for (const ArchivedRecord& record : records) {
            merge(record, known.find(record.id));
        }
    }

    template <class ArchivedRecord, class R>
    void merge(const ArchivedRecord& record, R* stored) {
        if (stored == nullptr) {
            context_.insert(import_.make(record));
            ++result_.inserted;
        } else if (import_.modifiedAt(record) > stored->modifiedAt()) {
            import_.replace(*stored, record);
            ++result_.updated;
        } else {
            ++result_.unchanged;
        }
    }

    Context& context_;
    ArchivedRecordImport import_;
    RecordIndex<WorkEntry> entries_;
    RecordIndex<BalanceAdjustment> adjustments_;
    RecordIndex<WorkSchedule> schedules_;
    RecordIndex<TimeBankSettings> settings_;
    TimeBankArchiveMergeResult result_;
};

void repair(Context& context, Instant now) {
    TimerSessionController::reconcileRunningEntries(context, now, false);
    DataStoreMaintenance::reconcileData(context, context.calendar(), now, false);
}

} // namespace

TimeBankArchiveMergeResult TimeBankArchive::merge(Context& context, Instant now) const {
    validate();
    const TimeBankArchiveMergeResult result = ArchiveMerge(context, exportedAt, now).run(*this);
    repair(context, now);
    context.save();
    return result;
}

} // namespace quillmere
