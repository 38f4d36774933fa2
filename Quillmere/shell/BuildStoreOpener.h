#pragma once

#include "Platform/entitlements/Entitlements.h"
#include "Quillmere/shell/StoreOpener.h"
#include "QuillmereKit/persistence/StoreLocations.h"

namespace quillmere {

/// Opens the store in the user's folders, with what the build is entitled to.
class BuildStoreOpener final : public StoreOpener {
public:
    /// `entitlements` must outlive the object.
    BuildStoreOpener(const platform::Entitlements& entitlements, StoreLocations locations);

    [[nodiscard]] bool hasRequiredCloudKitEntitlements() const override;
    [[nodiscard]] bool hasUsableAppGroup() const override;
    [[nodiscard]] std::shared_ptr<platform::store::Store>
    makeContainer(bool inMemory, bool cloudSync, bool useAppGroup) override;

private:
    const platform::Entitlements& entitlements_;
    StoreLocations locations_;
};

} // namespace quillmere
