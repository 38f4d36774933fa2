#pragma once

#include "Platform/store/Record.h"
#include "QuillmereKit/records/ActionReceiptValues.h"

#include <cstdint>
#include <string>
#include <utility>

namespace quillmere {

/// What a keyed action recorded, saved together with it, so that the key does so once. Belongs to
/// this device: it is not part of the archive. Never changes, and goes when all data is erased.
class ActionReceipt final : public platform::store::Record<ActionReceiptValues> {
public:
    explicit ActionReceipt(Values values) : Record(std::move(values)) {}

    /// The identifier of the change that was recorded, which may be edited or gone by now.
    [[nodiscard]] const platform::Uuid& recordId() const { return values().id; }
    /// Unique in a store.
    [[nodiscard]] const std::string& requestKey() const { return values().requestKey; }
    /// As recorded.
    [[nodiscard]] std::int64_t minutes() const { return values().minutes; }
    /// The balance right after the change was recorded.
    [[nodiscard]] std::int64_t balanceMinutes() const { return values().balanceMinutes; }
    [[nodiscard]] platform::Instant bookedAt() const { return values().bookedAt; }
};

} // namespace quillmere
