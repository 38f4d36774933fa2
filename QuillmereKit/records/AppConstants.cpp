#include "QuillmereKit/records/AppConstants.h"

#include "QuillmereKit/calculation/Fatal.h"

namespace quillmere {

const platform::Uuid& AppConstants::manualLedgerMigrationAdjustmentID() {
    static const platform::Uuid id = [] {
        const auto parsed = platform::Uuid::parse("C4D2B7E9-0B4A-4C2A-9D6E-000000000001");
        if (!parsed) {
            fatal("the migration marker's identifier is not a UUID");
        }
        return *parsed;
    }();
    return id;
}

} // namespace quillmere
