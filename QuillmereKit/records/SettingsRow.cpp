#include "QuillmereKit/records/SettingsRow.h"

#include "QuillmereKit/records/SurvivorRules.h"

namespace quillmere {

std::optional<SettingsRow> SettingsRow::make(platform::store::RowRef ref,
                                             const TimeBankSettingsValues& values) {
    return SettingsRow{ref, values};
}

bool operator<(const SettingsRow& a, const SettingsRow& b) {
    return ranksBelow(b.values, a.values);
}

} // namespace quillmere
