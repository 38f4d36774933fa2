#pragma once

#include <stdexcept>

namespace quillmere {

/// A synchronised store is wanted but the build may not use one. Only ever logged.
class AppModelContainerError : public std::runtime_error {
public:
    [[nodiscard]] static AppModelContainerError cloudKitEntitlementsUnavailable() {
        return AppModelContainerError(
            "This build doesn't contain the required iCloud entitlements.");
    }

private:
    using std::runtime_error::runtime_error;
};

} // namespace quillmere
