#pragma once

#include "Platform/base/Clock.h"
#include "Platform/store/Record.h"
#include "QuillmereKit/records/BalanceAdjustmentValues.h"
#include "QuillmereKit/rules/AdjustmentCategoryOption.h"
#include "QuillmereKit/rules/BalanceAdjustmentKind.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

namespace quillmere {

/// One signed change of the balance. Setters never touch `modifiedAt`; whoever writes keeps it
/// true.
class BalanceAdjustment final : public platform::store::Record<BalanceAdjustmentValues> {
public:
    using Kind = BalanceAdjustmentKind;

    explicit BalanceAdjustment(Values values) : Record(std::move(values)) {}

    /// Stores everything as given.
    BalanceAdjustment(platform::Uuid id, platform::Instant date, std::int64_t minutes,
                      std::string note, BalanceAdjustmentKind kind, platform::Instant createdAt,
                      platform::Instant modifiedAt);

    /// A new record: random id, dated, created and modified now, 0 minutes, category "manual".
    [[nodiscard]] static std::unique_ptr<BalanceAdjustment> create(const platform::Clock& clock);

    [[nodiscard]] const platform::Uuid& id() const { return values().id; }
    /// From when on the change counts in the balance; its calendar day is the day it is listed
    /// under.
    [[nodiscard]] platform::Instant date() const { return values().date; }
    /// Positive adds time, negative takes time.
    [[nodiscard]] std::int64_t minutes() const { return values().minutes; }
    [[nodiscard]] const std::string& note() const { return values().note; }
    /// The category: raw value of a built-in kind or of a custom category.
    [[nodiscard]] const std::string& kindRawValue() const { return values().kindRawValue; }
    [[nodiscard]] platform::Instant createdAt() const { return values().createdAt; }
    [[nodiscard]] platform::Instant modifiedAt() const { return values().modifiedAt; }

    void setDate(platform::Instant date) { assign<&Values::date>(date); }
    void setMinutes(std::int64_t minutes) { assign<&Values::minutes>(minutes); }
    void setNote(std::string note) { assign<&Values::note>(std::move(note)); }
    void setKindRawValue(std::string raw) { assign<&Values::kindRawValue>(std::move(raw)); }
    void setCreatedAt(platform::Instant instant) { assign<&Values::createdAt>(instant); }
    void setModifiedAt(platform::Instant instant) { assign<&Values::modifiedAt>(instant); }

    /// The built-in kind, `manual` where the category is not one.
    [[nodiscard]] BalanceAdjustmentKind kind() const;
    void setKind(BalanceAdjustmentKind kind) { setKindRawValue(std::string(rawValue(kind))); }

    /// The category as screens show it; "Manual adjustment" where the raw value names none. Says
    /// nothing about the sign of `minutes`.
    [[nodiscard]] AdjustmentCategoryOption category() const;
};

} // namespace quillmere
