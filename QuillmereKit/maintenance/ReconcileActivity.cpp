#include "QuillmereKit/maintenance/ActivityRepair.h"
#include "QuillmereKit/maintenance/DataStoreMaintenance.h"
#include "QuillmereKit/maintenance/RepairMemory.h"

#include <algorithm>
#include <vector>

namespace quillmere::DataStoreMaintenance {

namespace {

using platform::Instant;
using platform::store::Context;
using platform::store::RowKey;

/// One pass over work entries and changes: all of them, or those written since the mark.
class ActivityPass {
public:
    ActivityPass(Context& context, Instant now, std::optional<RepairMark> last)
        : context_(context), now_(now), last_(std::move(last)) {
        if (last_) {
            mark_.newestModifiedAt = last_->newestModifiedAt;
        }
        mark_.revision = context.revision();
    }

    template <class R>
    void repair() {
        for (R* record : last_ ? changedRecords<R>() : faultyRecords<R>()) {
            if (const auto values = ActivityRepair::repaired(record->values(), now_)) {
                ActivityRepair::assign(*record, *values);
                changed_ = true;
            }
            see(record->modifiedAt());
        }
    }

    [[nodiscard]] const RepairMark& mark() const { return mark_; }
    [[nodiscard]] bool changed() const { return changed_; }
    [[nodiscard]] std::size_t looked() const { return looked_; }

private:
    template <class R>
    std::vector<R*> changedRecords() {
        auto records = context_.fetchChangedSince<R>(last_->revision);
        looked_ += records.size();
        return records;
    }

    /// Looks through the whole store by value; only faulty records become objects.
    template <class R>
    std::vector<R*> faultyRecords() {
        std::vector<RowKey> keys;
        context_.scan<R>({}, [&](RowKey key, const typename R::Values& values) {
            ++looked_;
            if (ActivityRepair::repaired(values, now_)) {
                keys.push_back(key);
            } else {
                see(values.modifiedAt);
            }
        });
        std::vector<R*> records;
        for (const RowKey key : keys) {
            if (R* record = context_.find<R>(key)) {
                records.push_back(record);
            }
        }
        return records;
    }

    void see(Instant modifiedAt) {
        mark_.newestModifiedAt = std::max(mark_.newestModifiedAt, modifiedAt);
    }

    Context& context_;
    Instant now_;
    std::optional<RepairMark> last_;
    RepairMark mark_;
    bool changed_ = false;
    std::size_t looked_ = 0;
};

} // namespace

void reconcileActivity(Context& context, Instant now, bool saveChanges) {
    const RepairMemory memory(context, "repaired.activity");
    ActivityPass pass(context, now, memory.recall(now));
    pass.repair<WorkEntry>();
    pass.repair<BalanceAdjustment>();
    if (saveChanges) {
        memory.finish(pass.mark(), pass.changed(), pass.looked());
    }
}

} // namespace quillmere::DataStoreMaintenance
