#include "Quillmere/dashboard/LedgerTransaction.h"

#include "Platform/calendar/DateText.h"
#include "QuillmereKit/records/BalanceAdjustment.h"
#include "QuillmereKit/records/LedgerRowText.h"
#include "QuillmereKit/rules/DurationFormatting.h"

namespace quillmere {

namespace {

QString qString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

LedgerTransaction LedgerTransaction::of(const BalanceAdjustment& adjustment,
                                        const platform::DateText& dates) {
    LedgerTransaction transaction;
    const double seconds = static_cast<double>(adjustment.minutes()) * 60;
    transaction.title = qString(LedgerRowText::title(adjustment));
    transaction.systemImage = qString(LedgerRowText::systemImage(adjustment.minutes()));
    transaction.dateText =
        qString(dates.text(adjustment.date(), platform::DateStyle::weekdayDayTime));
    transaction.amountText = qString(DurationFormatting::clock(seconds, true));
    transaction.accessibleName = qString(LedgerRowText::accessibilityLabel(adjustment));
    transaction.takesTime = adjustment.minutes() < 0;
    return transaction;
}

} // namespace quillmere
