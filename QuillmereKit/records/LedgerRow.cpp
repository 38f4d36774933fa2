#include "QuillmereKit/records/LedgerRow.h"

#include "QuillmereKit/migration/ManualLedgerMigration.h"

#include <functional>
#include <limits>
#include <string_view>

namespace quillmere {

std::optional<LedgerRow> LedgerRow::make(platform::store::RowRef ref,
                                         const BalanceAdjustmentValues& values) {
    constexpr platform::Instant never{std::numeric_limits<double>::infinity()};
    const std::hash<std::string_view> hash;
    const std::size_t content = hash(values.note) * 31 + hash(values.kindRawValue);
    return LedgerRow{.ref = ref,
                     .date = values.date == values.date ? values.date : never,
                     .minutes = values.minutes,
                     .id = values.id,
                     .modifiedAt = values.modifiedAt,
                     .contentHash = static_cast<std::uint32_t>(content ^ (content >> 32)),
                     .isListed =
                         values.minutes != 0 && !ManualLedgerMigration::isCarryover(values)};
}

} // namespace quillmere
