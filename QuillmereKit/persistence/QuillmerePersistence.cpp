#include "QuillmereKit/persistence/QuillmerePersistence.h"

#include "Platform/store/StoreError.h"
#include "QuillmereKit/records/BalanceAdjustment.h"
#include "QuillmereKit/records/TimeBankSettings.h"
#include "QuillmereKit/records/WorkEntry.h"
#include "QuillmereKit/records/WorkSchedule.h"

#include <string>

namespace quillmere::QuillmerePersistence {

namespace {

/// Marks our files in SQLite's header: the bytes "QMTB". Frozen.
constexpr std::int32_t applicationId = 0x514D5442;
/// 1.0.0, counted as the store counts. Frozen with every release.
constexpr int schemaVersion = 1;

} // namespace

const platform::store::Schema& schema() {
    static const platform::store::Schema shared =
        platform::store::Schema{applicationId, schemaVersion}
            .add<WorkEntry>()
            .add<BalanceAdjustment>()
            .add<WorkSchedule>()
            .add<TimeBankSettings>();
    return shared;
}

std::shared_ptr<platform::store::Store>
makeContainer(bool inMemory, bool cloudSync, bool useAppGroup, const StoreLocations& locations) {
    if (inMemory) {
        return platform::store::Store::open(schema(), {.file = {}, .inMemory = true});
    }
    if (cloudSync) {
        throw platform::store::StoreError(platform::store::StoreFault::cannotOpen,
                                          "There is no private sync account.");
    }
    const auto& folder = useAppGroup ? locations.sharedContainer : locations.defaultFolder;
    return platform::store::Store::open(schema(),
                                        {.file = folder / (std::string(storeName) + ".sqlite")});
}

} // namespace quillmere::QuillmerePersistence
