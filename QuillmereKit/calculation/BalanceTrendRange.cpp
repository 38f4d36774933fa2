#include "QuillmereKit/calculation/BalanceTrendRange.h"

namespace quillmere {

std::string_view title(BalanceTrendRange range) {
    switch (range) {
    case BalanceTrendRange::week:
        return "7 days";
    case BalanceTrendRange::twoWeeks:
        return "14 days";
    case BalanceTrendRange::month:
        return "30 days";
    case BalanceTrendRange::quarter:
        return "90 days";
    }
    return {};
}

BalanceTrendRange BalanceTrendRanges::fromDayCount(double days) {
    for (const BalanceTrendRange range : all) {
        if (days == dayCount(range)) {
            return range;
        }
    }
    return BalanceTrendRange::month;
}

} // namespace quillmere
