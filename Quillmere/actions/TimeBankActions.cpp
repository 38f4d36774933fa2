#include "Quillmere/actions/TimeBankActions.h"

#include "QuillmereKit/records/AppConstants.h"
#include "QuillmereKit/widget/WidgetSnapshotStore.h"

#include <cmath>

namespace quillmere {

TimeBankActions::TimeBankActions(WidgetCenter& widgets)
    : folders_(platform::UserFolders::ofEnvironment()),
      entitlements_(platform::FileEntitlements::ofRunningProgram()),
      preferences_(folders_.configuration() / AppConstants::applicationIdentifier),
      suite_(folders_.configuration() / AppConstants::appGroupIdentifier),
      widgets_(widgets) {
}

AdjustTimeBankIntent::Result TimeBankActions::adjust(std::int64_t minutes) {
    return AdjustTimeBankIntent(minutes).perform(services());
}

AdjustTimeBankIntent::KeyedResult TimeBankActions::adjustOnce(const std::string& key,
                                                              std::int64_t minutes) {
    return AdjustTimeBankIntent(minutes).performOnce(key, services());
}

std::int64_t TimeBankActions::publishedBalanceMinutes() {
    const auto& defaults =
        WidgetSnapshotStore::chosenDefaults(entitlements_, &suite_, preferences_);
    return std::llround(WidgetSnapshotStore::load(defaults, clock_).balanceSeconds / 60);
}

AdjustTimeBankIntent::Services TimeBankActions::services() {
    return {entitlements_, StoreLocations::within(folders_.data()),
            clock_,        calendars_,
            &suite_,       preferences_,
            widgets_,      &store_};
}

} // namespace quillmere
