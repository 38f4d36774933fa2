#pragma once

#include "QuillmereKit/records/TimeBankSettingsValues.h"

namespace quillmere {

/// Whether `a` gives way to `b` when both are settings: setup completed, then modified last, then
/// the greater identifier.
[[nodiscard]] inline bool ranksBelow(const TimeBankSettingsValues& a,
                                     const TimeBankSettingsValues& b) {
    if (a.hasCompletedOnboarding != b.hasCompletedOnboarding) {
        return b.hasCompletedOnboarding;
    }
    return a.modifiedAt != b.modifiedAt ? a.modifiedAt < b.modifiedAt : a.id < b.id;
}

/// Whether `a` gives way to `b` when both are copies of one record: modified last, then created
/// last, then the greater identifier.
template <class Values>
[[nodiscard]] bool isOlderCopy(const Values& a, const Values& b) {
    if (a.modifiedAt != b.modifiedAt) {
        return a.modifiedAt < b.modifiedAt;
    }
    return a.createdAt != b.createdAt ? a.createdAt < b.createdAt : a.id < b.id;
}

} // namespace quillmere
