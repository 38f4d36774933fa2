#pragma once

#include "Platform/store/Store.h"

#include <memory>

namespace quillmere {

/// Opens the record store and says what this build may use. `BuildStoreOpener` is the real one;
/// tests have their own.
class StoreOpener {
public:
    virtual ~StoreOpener() = default;

    /// Both are asked anew each time; nothing is cached.
    [[nodiscard]] virtual bool hasRequiredCloudKitEntitlements() const = 0;
    [[nodiscard]] virtual bool hasUsableAppGroup() const = 0;

    /// Throws a `std::exception` that describes why the store cannot be opened.
    [[nodiscard]] virtual std::shared_ptr<platform::store::Store>
    makeContainer(bool inMemory, bool cloudSync, bool useAppGroup) = 0;
};

} // namespace quillmere
