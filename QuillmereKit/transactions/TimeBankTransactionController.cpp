#include "QuillmereKit/transactions/TimeBankTransactionController.h"

#include "QuillmereKit/records/NoteValidation.h"
#include "QuillmereKit/rules/AdjustmentCategoryValidation.h"

#include <memory>

namespace quillmere::TimeBankTransactionController {

namespace {

void checkAmount(std::int64_t minutes) {
    using Reason = TimeBankTransactionError::Reason;
    if (minutes == 0) {
        throw TimeBankTransactionError(Reason::zeroDuration);
    }
    if (minutes < -maximumAbsoluteMinutes || minutes > maximumAbsoluteMinutes) {
        throw TimeBankTransactionError(Reason::durationTooLarge);
    }
}

} // namespace

platform::Instant submissionDate(platform::Instant selectedDate, platform::Instant now,
                                 const platform::Calendar& calendar) {
    return calendar.isSameDay(selectedDate, now) ? now : selectedDate;
}

BalanceAdjustment& insert(std::int64_t minutes, platform::Instant date, std::string_view note,
                          std::string_view kindRawValue, platform::store::Context& context) {
    checkAmount(minutes);
    const platform::Instant createdAt = context.clock().now();
    const platform::Instant modifiedAt = context.clock().now();
    // Cutting may uncover white space at the end; the second pass trims it.
    auto adjustment = std::make_unique<BalanceAdjustment>(
        platform::Uuid::random(), date, minutes,
        NoteValidation::normalized(NoteValidation::normalized(note)), BalanceAdjustmentKind::manual,
        createdAt, modifiedAt);
    adjustment->setKindRawValue(AdjustmentCategoryValidation::normalizedRawValue(kindRawValue));
    return context.insert(std::move(adjustment));
}

BalanceAdjustment& record(std::int64_t minutes, platform::Instant date, std::string_view note,
                          std::string_view kindRawValue, platform::store::Context& context) {
    BalanceAdjustment& inserted = insert(minutes, date, note, kindRawValue, context);
    context.save();
    return inserted;
}

} // namespace quillmere::TimeBankTransactionController
