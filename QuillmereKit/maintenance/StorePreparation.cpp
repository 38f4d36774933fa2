#include "QuillmereKit/maintenance/StorePreparation.h"

#include "QuillmereKit/maintenance/DataStoreMaintenance.h"

namespace quillmere::StorePreparation {

TimeBankSettings& prepare(platform::store::Context& context) {
    return DataStoreMaintenance::reconcileData(context, context.calendar(), context.clock().now(),
                                               true);
}

void completeOnboarding(platform::store::Context& context, TimeBankSettings& settings) {
    const platform::Instant now = context.clock().now();
    settings.setCalculationStartDate(context.calendar().startOfDay(now));
    settings.setWeekdayMinutes(WeekdayMinutes{});
    settings.setHasCompletedOnboarding(true);
    settings.setModifiedAt(now);
    prepare(context);
    context.save(); // the repairs save only what they change themselves
}

} // namespace quillmere::StorePreparation
