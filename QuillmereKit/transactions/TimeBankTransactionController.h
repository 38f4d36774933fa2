#pragma once

#include "Platform/calendar/Calendar.h"
#include "Platform/store/Context.h"
#include "QuillmereKit/records/BalanceAdjustment.h"
#include "QuillmereKit/transactions/TimeBankTransactionError.h"

#include <cstdint>
#include <string_view>

namespace quillmere {

/// The one place where changes of the time bank are made from user input.
namespace TimeBankTransactionController {

/// Largest amount of one change, either way: 24 hours.
inline constexpr std::int64_t maximumAbsoluteMinutes = 1440;

/// `now` when the selected date falls on the same calendar day, else the selected date itself: a
/// change entered for today carries the moment it was entered.
[[nodiscard]] platform::Instant submissionDate(platform::Instant selectedDate,
                                               platform::Instant now,
                                               const platform::Calendar& calendar);

/// `record` without the save: the new record is pending in the context.
BalanceAdjustment& insert(std::int64_t minutes, platform::Instant date, std::string_view note,
                          std::string_view kindRawValue, platform::store::Context& context);

/// Records a change and saves it. Positive minutes add time. The note is normalised and an unknown
/// category becomes "manual"; amounts are refused, never cut. Throws `TimeBankTransactionError`
/// with nothing created, or the save's `StoreError` with the new record still pending in the
/// context.
BalanceAdjustment& record(std::int64_t minutes, platform::Instant date, std::string_view note,
                          std::string_view kindRawValue, platform::store::Context& context);

} // namespace TimeBankTransactionController

} // namespace quillmere
