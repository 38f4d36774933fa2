#include "QuillmereKit/widget/WidgetSnapshotBuilder.h"

#include "QuillmereKit/maintenance/DataStoreMaintenance.h"
#include "QuillmereKit/maintenance/StoredBalance.h"
#include "QuillmereKit/widget/WidgetSnapshotStore.h"

#include <cstdint>

namespace quillmere::WidgetSnapshotBuilder {

namespace {

double secondsOf(std::int64_t minutes) {
    return static_cast<double>(minutes) * 60.0;
}

} // namespace

WidgetSnapshot make(platform::store::Context& context, platform::Instant now) {
    const platform::Calendar calendar = context.calendar();
    const TimeBankSettings& settings =
        DataStoreMaintenance::reconcileData(context, calendar, context.clock().now(), true);
    StoredBalance changes(context);
    const auto figures = changes.figures(calendar.startOfDay(now), now);
    changes.remember();
    // Repaired amounts are whole and small, so their sums are exact in any order.
    return {secondsOf(settings.startingBalanceMinutes()) + secondsOf(figures.balanceMinutes),
            secondsOf(figures.addedMinutes),
            0.0 - secondsOf(figures.takenMinutes),
            std::nullopt,
            settings.quickActionMinutes(),
            now,
            settings.hasCompletedOnboarding()};
}

WidgetSnapshot save(platform::store::Context& context, platform::Instant now,
                    platform::Preferences& defaults) {
    WidgetSnapshot snapshot = make(context, now);
    WidgetSnapshotStore::save(snapshot, defaults);
    return snapshot;
}

} // namespace quillmere::WidgetSnapshotBuilder
