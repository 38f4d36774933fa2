#pragma once

#include "Platform/base/Instant.h"
#include "Platform/base/Uuid.h"
#include "Platform/store/RecordFields.h"

#include <cstdint>
#include <string>
#include <tuple>

namespace quillmere {

/// The fields of an `ActionReceipt`, in the order they are stored.
struct ActionReceiptValues {
    platform::Uuid id; ///< that of the change
    std::string requestKey;
    std::int64_t minutes = 0;
    std::int64_t balanceMinutes = 0;
    platform::Instant bookedAt;

    friend bool operator==(const ActionReceiptValues&, const ActionReceiptValues&) = default;
};

} // namespace quillmere

template <>
struct platform::store::RecordFields<quillmere::ActionReceiptValues> {
    using V = quillmere::ActionReceiptValues;
    static constexpr std::string_view table = "action_receipt";
    static constexpr std::string_view uniqueColumn = "request_key";
    static constexpr auto fields = std::tuple{
        Field{"id", &V::id}, Field{"request_key", &V::requestKey}, Field{"minutes", &V::minutes},
        Field{"balance_minutes", &V::balanceMinutes}, Field{"booked_at", &V::bookedAt}};
};
