#include "Quillmere/dashboard/BalanceSummary.h"

#include "QuillmereKit/rules/DurationFormatting.h"

#include <QtCore/QCoreApplication>

namespace quillmere {

namespace {

QString clock(double seconds) {
    return QString::fromStdString(DurationFormatting::clock(seconds, true));
}

QString spoken(double seconds) {
    return QString::fromStdString(DurationFormatting::accessible(seconds));
}

} // namespace

BalanceSummary BalanceSummary::of(double balanceSeconds, std::optional<double> todaySeconds) {
    const double today = todaySeconds.value_or(0);
    return {.seconds = balanceSeconds,
            .text = clock(balanceSeconds),
            .spoken = quillmere::spoken(balanceSeconds),
            .isNegative = balanceSeconds < 0,
            .isTodayKnown = todaySeconds.has_value(),
            .todayText =
                QCoreApplication::translate("BalanceSummary", "%1 today").arg(clock(today)),
            .todaySpoken = quillmere::spoken(today),
            .isTodayNegative = today < 0};
}

} // namespace quillmere
