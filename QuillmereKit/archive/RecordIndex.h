#pragma once

#include "Platform/base/Instant.h"
#include "Platform/base/Uuid.h"
#include "Platform/calendar/CivilDate.h"
#include "Platform/store/Context.h"
#include "QuillmereKit/records/RecordTimestampValidation.h"

#include <unordered_map>
#include <utility>

namespace quillmere {

/// The stored records of one type by identifier, one each.
template <class R>
class RecordIndex {
public:
    /// Brings the times of all stored records in order and deletes what is a duplicate: of records
    /// with one identifier the one modified last stays, the first of equals. One that was not
    /// modified after the year 1 began is never the one that stays.
    RecordIndex(platform::store::Context& context, platform::Instant now) {
        const auto records = context.fetch<R>();
        records_.reserve(records.size());
        const platform::Instant distantPast{
            static_cast<double>(platform::daysSince1970({1, 1, 1})) * 86'400};
        for (R* record : records) {
            normalizeTimes(*record, now);
            R*& kept = records_[record->id()];
            const bool isKept =
                record->modifiedAt() > (kept != nullptr ? kept->modifiedAt() : distantPast);
            if (R* loser = isKept ? std::exchange(kept, record) : record) {
                context.remove(*loser);
            }
        }
    }

    /// Null when there is none.
    [[nodiscard]] R* find(const platform::Uuid& id) const {
        const auto entry = records_.find(id);
        return entry != records_.end() ? entry->second : nullptr;
    }

private:
    static void normalizeTimes(R& record, platform::Instant now) {
        using namespace RecordTimestampValidation;
        record.setModifiedAt(normalizedModifiedAt(record.modifiedAt(), now));
        if constexpr (requires { record.createdAt(); }) {
            record.setCreatedAt(normalizedCreatedAt(record.createdAt(), record.modifiedAt()));
        }
    }

    std::unordered_map<platform::Uuid, R*> records_;
};

} // namespace quillmere
