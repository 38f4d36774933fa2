#pragma once

#include "Platform/base/Instant.h"
#include "Platform/base/Uuid.h"
#include "Platform/store/RecordFields.h"

#include <cstdint>
#include <string>
#include <tuple>

namespace quillmere {

/// The fields of a `BalanceAdjustment`, in the order they are stored.
struct BalanceAdjustmentValues {
    platform::Uuid id;
    platform::Instant date;
    std::int64_t minutes = 0;
    std::string note;
    std::string kindRawValue = "manual";
    platform::Instant createdAt;
    platform::Instant modifiedAt;

    friend bool operator==(const BalanceAdjustmentValues&,
                           const BalanceAdjustmentValues&) = default;
};

} // namespace quillmere

template <>
struct platform::store::RecordFields<quillmere::BalanceAdjustmentValues> {
    using V = quillmere::BalanceAdjustmentValues;
    static constexpr std::string_view table = "balance_adjustment";
    static constexpr auto fields = std::tuple{Field{"id", &V::id},
                                              Field{"date", &V::date},
                                              Field{"minutes", &V::minutes},
                                              Field{"note", &V::note},
                                              Field{"kind_raw_value", &V::kindRawValue},
                                              Field{"created_at", &V::createdAt},
                                              Field{"modified_at", &V::modifiedAt}};
};
