#include "QuillmereKit/records/BalanceAdjustment.h"

namespace quillmere {

BalanceAdjustment::BalanceAdjustment(platform::Uuid id, platform::Instant date,
                                     std::int64_t minutes, std::string note,
                                     BalanceAdjustmentKind kind, platform::Instant createdAt,
                                     platform::Instant modifiedAt)
    : Record({.id = id,
              .date = date,
              .minutes = minutes,
              .note = std::move(note),
              .kindRawValue = std::string(rawValue(kind)),
              .createdAt = createdAt,
              .modifiedAt = modifiedAt}) {
}

std::unique_ptr<BalanceAdjustment> BalanceAdjustment::create(const platform::Clock& clock) {
    const platform::Instant now = clock.now();
    return std::make_unique<BalanceAdjustment>(platform::Uuid::random(), now, 0, std::string{},
                                               BalanceAdjustmentKind::manual, now, now);
}

BalanceAdjustmentKind BalanceAdjustment::kind() const {
    return BalanceAdjustmentKinds::fromRawValue(kindRawValue())
        .value_or(BalanceAdjustmentKind::manual);
}

AdjustmentCategoryOption BalanceAdjustment::category() const {
    return AdjustmentCategoryOption::resolve(kindRawValue())
        .value_or(AdjustmentCategoryOption::builtIn(BalanceAdjustmentKind::manual));
}

} // namespace quillmere
