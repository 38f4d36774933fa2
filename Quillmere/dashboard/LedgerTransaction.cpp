#include "Quillmere/dashboard/LedgerTransaction.h"

#include "Platform/calendar/DateText.h"
#include "QuillmereKit/records/BalanceAdjustment.h"
#include "QuillmereKit/records/LedgerRowText.h"
#include "QuillmereKit/rules/DurationFormatting.h"

#include <algorithm>

namespace quillmere {

namespace {

QString onOneLine(QString text) {
    const auto breaksLine = [](QChar character) {
        return QStringView(u"\n\r\u2028\u2029").contains(character);
    };
    std::ranges::replace_if(text, breaksLine, QChar(u' '));
    return text;
}

} // namespace

LedgerTransaction LedgerTransaction::of(const BalanceAdjustment& adjustment,
                                        const platform::DateText& dates) {
    LedgerTransaction transaction;
    const double seconds = static_cast<double>(adjustment.minutes()) * 60;
    transaction.title = onOneLine(QString::fromUtf8(LedgerRowText::title(adjustment)));
    transaction.systemImage = QString::fromUtf8(LedgerRowText::systemImage(adjustment.minutes()));
    transaction.dateText =
        QString::fromUtf8(dates.text(adjustment.date(), platform::DateStyle::weekdayDayTime));
    transaction.amountText = QString::fromUtf8(DurationFormatting::clock(seconds, true));
    transaction.accessibleName = QString::fromUtf8(LedgerRowText::accessibilityLabel(adjustment));
    transaction.takesTime = adjustment.minutes() < 0;
    return transaction;
}

} // namespace quillmere
