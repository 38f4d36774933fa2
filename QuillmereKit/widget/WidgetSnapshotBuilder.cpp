#include "QuillmereKit/widget/WidgetSnapshotBuilder.h"

#include "QuillmereKit/maintenance/DataStoreMaintenance.h"
#include "QuillmereKit/records/BalanceAdjustment.h"
#include "QuillmereKit/widget/WidgetSnapshotStore.h"

#include <cmath>

namespace quillmere::WidgetSnapshotBuilder {

namespace {

using platform::Instant;
using platform::store::Comparison;
using platform::store::Context;
using Values = BalanceAdjustmentValues;
using Changes = platform::store::Filter<BalanceAdjustment>;

double secondsOf(std::int64_t minutes) {
    return static_cast<double>(minutes) * 60.0;
}

/// The ledger balance. Repaired amounts are whole and small, so their sum is exact in any order.
double balanceSeconds(Context& context, const TimeBankSettings& settings, Instant through) {
    const auto minutes = context.sum<BalanceAdjustment, &Values::minutes>(
        Changes{}.where<&Values::date>(Comparison::lessOrEqual, through));
    return secondsOf(settings.startingBalanceMinutes()) + secondsOf(minutes);
}

struct Activity {
    double added = 0;
    double taken = 0;
};

Activity activity(Context& context, Instant from, Instant through) {
    Activity today;
    context.scan<BalanceAdjustment>(Changes{}
                                        .where<&Values::date>(Comparison::greaterOrEqual, from)
                                        .where<&Values::date>(Comparison::lessOrEqual, through),
                                    [&today](platform::store::RowKey, const Values& change) {
                                        (change.minutes > 0 ? today.added : today.taken) +=
                                            std::abs(secondsOf(change.minutes));
                                    });
    return today;
}

} // namespace

WidgetSnapshot make(Context& context, Instant now) {
    const platform::Calendar calendar = context.calendar();
    const TimeBankSettings& settings =
        DataStoreMaintenance::reconcileData(context, calendar, context.clock().now(), true);
    const Activity today = activity(context, calendar.startOfDay(now), now);
    return {balanceSeconds(context, settings, now),
            today.added,
            today.taken,
            std::nullopt,
            settings.quickActionMinutes(),
            now,
            settings.hasCompletedOnboarding()};
}

WidgetSnapshot save(Context& context, Instant now, platform::Preferences& defaults) {
    WidgetSnapshot snapshot = make(context, now);
    WidgetSnapshotStore::save(snapshot, defaults);
    return snapshot;
}

} // namespace quillmere::WidgetSnapshotBuilder
