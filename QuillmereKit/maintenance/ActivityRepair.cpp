#include "QuillmereKit/maintenance/ActivityRepair.h"

#include "QuillmereKit/records/NoteValidation.h"
#include "QuillmereKit/records/RecordTimestampValidation.h"
#include "QuillmereKit/rules/AdjustmentCategoryValidation.h"

#include <algorithm>

namespace quillmere::ActivityRepair {

namespace {

/// Completes a copy whose content is repaired: its times, and whether it differs at all.
template <class Values>
std::optional<Values> withTimes(Values repaired, const Values& stored, bool contentDiffers,
                                platform::Instant now) {
    using namespace RecordTimestampValidation;
    const platform::Instant modifiedAt = normalizedModifiedAt(stored.modifiedAt, now);
    repaired.modifiedAt = contentDiffers ? now : modifiedAt;
    repaired.createdAt = normalizedCreatedAt(stored.createdAt, modifiedAt);
    const bool timesDiffer = !platform::store::sameValue(repaired.modifiedAt, stored.modifiedAt) ||
                             !platform::store::sameValue(repaired.createdAt, stored.createdAt);
    return contentDiffers || timesDiffer ? std::optional(std::move(repaired)) : std::nullopt;
}

} // namespace

std::optional<WorkEntryValues> repaired(const WorkEntryValues& stored, platform::Instant now) {
    WorkEntryValues values = stored;
    values.breakMinutes = std::clamp<std::int64_t>(stored.breakMinutes, 0, maximumBreakMinutes);
    if (stored.endedAt && *stored.endedAt < stored.startedAt) {
        values.endedAt = stored.startedAt;
    }
    values.note = NoteValidation::normalized(stored.note);
    const bool contentDiffers = values.breakMinutes != stored.breakMinutes ||
                                values.note != stored.note ||
                                !platform::store::sameValue(values.endedAt, stored.endedAt);
    return withTimes(std::move(values), stored, contentDiffers, now);
}

std::optional<BalanceAdjustmentValues> repaired(const BalanceAdjustmentValues& stored,
                                                platform::Instant now) {
    using namespace AdjustmentCategoryValidation;
    BalanceAdjustmentValues values = stored;
    values.kindRawValue = normalizedRawValue(stored.kindRawValue);
    values.minutes = normalizedMinutes(stored.minutes, values.kindRawValue);
    values.note = NoteValidation::normalized(stored.note);
    const bool contentDiffers = values.kindRawValue != stored.kindRawValue ||
                                values.minutes != stored.minutes || values.note != stored.note;
    return withTimes(std::move(values), stored, contentDiffers, now);
}

void assign(WorkEntry& entry, const WorkEntryValues& repaired) {
    entry.setBreakMinutes(repaired.breakMinutes);
    entry.setEndedAt(repaired.endedAt);
    entry.setNote(repaired.note);
    entry.setCreatedAt(repaired.createdAt);
    entry.setModifiedAt(repaired.modifiedAt);
}

void assign(BalanceAdjustment& adjustment, const BalanceAdjustmentValues& repaired) {
    adjustment.setKindRawValue(repaired.kindRawValue);
    adjustment.setMinutes(repaired.minutes);
    adjustment.setNote(repaired.note);
    adjustment.setCreatedAt(repaired.createdAt);
    adjustment.setModifiedAt(repaired.modifiedAt);
}

} // namespace quillmere::ActivityRepair
