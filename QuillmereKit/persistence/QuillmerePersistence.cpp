#include "QuillmereKit/persistence/QuillmerePersistence.h"

#include "Platform/store/StoreError.h"
#include "QuillmereKit/records/ActionReceipt.h"
#include "QuillmereKit/records/BalanceAdjustment.h"
#include "QuillmereKit/records/TimeBankSettings.h"
#include "QuillmereKit/records/WorkEntry.h"
#include "QuillmereKit/records/WorkSchedule.h"

#include <string>
#include <vector>

namespace quillmere::QuillmerePersistence {

namespace {

/// Marks our files in SQLite's header: the bytes "QMTB". Frozen.
constexpr std::int32_t applicationId = 0x514D5442;
/// Counted as the store counts: 1 is 1.0.0, 2 is 1.1.0. Frozen with every release.
constexpr int schemaVersion = 2;

/// From 1.0.0 to 1.1.0: the receipts of keyed actions.
std::vector<std::string> addReceipts() {
    return {"CREATE TABLE action_receipt (row_key INTEGER PRIMARY KEY AUTOINCREMENT,"
            " revision INTEGER NOT NULL, id BLOB NOT NULL, request_key TEXT NOT NULL,"
            " minutes INTEGER NOT NULL, balance_minutes INTEGER NOT NULL, booked_at ANY NOT NULL)"
            " STRICT",
            "CREATE INDEX action_receipt_revision ON action_receipt (revision)",
            "CREATE UNIQUE INDEX action_receipt_request_key ON action_receipt (request_key)"};
}

} // namespace

const platform::store::Schema& schema() {
    static const platform::store::Schema shared =
        platform::store::Schema{applicationId, schemaVersion}
            .add<WorkEntry>()
            .add<BalanceAdjustment>()
            .add<WorkSchedule>()
            .add<TimeBankSettings>()
            .add<ActionReceipt>()
            .addMigration(1, addReceipts());
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
