#include "Quillmere/reports/LedgerFigures.h"

#include "QuillmereKit/rules/DurationFormatting.h"

#include <limits>

namespace quillmere {

namespace {

QString clock(double seconds, bool includeSign = false) {
    return QString::fromStdString(DurationFormatting::clock(seconds, includeSign));
}

QString spoken(double seconds) {
    return QString::fromStdString(DurationFormatting::accessible(seconds));
}

} // namespace

LedgerFigures LedgerFigures::of(double added, double subtracted, double net) {
    return {.added = clock(added),
            .addedSpoken = spoken(added),
            .subtracted = clock(subtracted),
            .subtractedSpoken = spoken(subtracted),
            .net = clock(net, true),
            .netSpoken = spoken(net),
            .isNetNegative = net < 0};
}

LedgerFigures LedgerFigures::unknown() {
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    LedgerFigures figures = of(none, none, none);
    figures.net = clock(none);
    return figures;
}

} // namespace quillmere
