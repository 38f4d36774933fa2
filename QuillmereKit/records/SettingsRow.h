#pragma once

#include "Platform/store/RowKey.h"
#include "QuillmereKit/records/TimeBankSettingsValues.h"

#include <optional>

namespace quillmere {

/// The settings record in a live query, with everything it holds. Should a store hold several for a
/// while, the one that its repair would keep comes first.
struct SettingsRow {
    platform::store::RowRef ref;
    TimeBankSettingsValues values;

    [[nodiscard]] static std::optional<SettingsRow> make(platform::store::RowRef ref,
                                                         const TimeBankSettingsValues& values);

    friend bool operator<(const SettingsRow& a, const SettingsRow& b);
    friend bool operator==(const SettingsRow&, const SettingsRow&) = default;
};

} // namespace quillmere
