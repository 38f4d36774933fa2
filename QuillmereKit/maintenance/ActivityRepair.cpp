#include "QuillmereKit/maintenance/ActivityRepair.h"

#include "QuillmereKit/records/NoteValidation.h"
#include "QuillmereKit/records/RecordTimestampValidation.h"
#include "QuillmereKit/rules/AdjustmentCategoryValidation.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

namespace quillmere::ActivityRepair {

namespace {

using platform::Instant;
using platform::store::sameValue;

struct Times {
    Instant createdAt;
    Instant modifiedAt;
};

template <class Values>
Times repairedTimes(const Values& stored, bool contentDiffers, Instant now) {
    using namespace RecordTimestampValidation;
    const Instant modifiedAt = normalizedModifiedAt(stored.modifiedAt, now);
    return {normalizedCreatedAt(stored.createdAt, modifiedAt), contentDiffers ? now : modifiedAt};
}

template <class Values>
bool areStored(const Times& times, const Values& stored) {
    return sameValue(times.createdAt, stored.createdAt) &&
           sameValue(times.modifiedAt, stored.modifiedAt);
}

} // namespace

// Nearly every record is in order, so nothing is copied before a fault is found.

std::optional<WorkEntryValues> repaired(const WorkEntryValues& stored, Instant now) {
    const auto breakMinutes = std::clamp<std::int64_t>(stored.breakMinutes, 0, maximumBreakMinutes);
    const bool endsTooEarly = stored.endedAt && *stored.endedAt < stored.startedAt;
    const std::string_view note = NoteValidation::normalizedPart(stored.note);
    const bool contentDiffers =
        breakMinutes != stored.breakMinutes || endsTooEarly || note != stored.note;
    const Times times = repairedTimes(stored, contentDiffers, now);
    if (!contentDiffers && areStored(times, stored)) {
        return std::nullopt;
    }
    return WorkEntryValues{.id = stored.id,
                           .startedAt = stored.startedAt,
                           .endedAt = endsTooEarly ? stored.startedAt : stored.endedAt,
                           .breakMinutes = breakMinutes,
                           .note = std::string(note),
                           .createdAt = times.createdAt,
                           .modifiedAt = times.modifiedAt};
}

std::optional<BalanceAdjustmentValues> repaired(const BalanceAdjustmentValues& stored,
                                                Instant now) {
    using namespace AdjustmentCategoryValidation;
    std::string kind = normalizedRawValue(stored.kindRawValue);
    const std::int64_t minutes = normalizedMinutes(stored.minutes, kind);
    const std::string_view note = NoteValidation::normalizedPart(stored.note);
    const bool contentDiffers =
        kind != stored.kindRawValue || minutes != stored.minutes || note != stored.note;
    const Times times = repairedTimes(stored, contentDiffers, now);
    if (!contentDiffers && areStored(times, stored)) {
        return std::nullopt;
    }
    return BalanceAdjustmentValues{.id = stored.id,
                                   .date = stored.date,
                                   .minutes = minutes,
                                   .note = std::string(note),
                                   .kindRawValue = std::move(kind),
                                   .createdAt = times.createdAt,
                                   .modifiedAt = times.modifiedAt};
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
