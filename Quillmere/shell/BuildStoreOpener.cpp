#include "Quillmere/shell/BuildStoreOpener.h"

#include "QuillmereKit/persistence/QuillmerePersistence.h"
#include "QuillmereKit/persistence/RuntimeEntitlements.h"

#include <utility>

namespace quillmere {

BuildStoreOpener::BuildStoreOpener(const platform::Entitlements& entitlements,
                                   StoreLocations locations)
    : entitlements_(entitlements), locations_(std::move(locations)) {
}

bool BuildStoreOpener::hasRequiredCloudKitEntitlements() const {
    return RuntimeEntitlements::hasRequiredCloudKitEntitlements(entitlements_);
}

bool BuildStoreOpener::hasUsableAppGroup() const {
    return RuntimeEntitlements::hasUsableAppGroup(entitlements_);
}

std::shared_ptr<platform::store::Store>
BuildStoreOpener::makeContainer(bool inMemory, bool cloudSync, bool useAppGroup) {
    return QuillmerePersistence::makeContainer(inMemory, cloudSync, useAppGroup, locations_);
}

} // namespace quillmere
