#pragma once

#include "Quillmere/shell/StoreOpener.h"
#include "QuillmereKit/persistence/QuillmerePersistence.h"

#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace quillmere {

/// Opens stores in memory, or fails as it is told, and remembers what was asked of it.
class FakeStoreOpener final : public StoreOpener {
public:
    bool cloudKit = true;
    bool appGroup = true;
    std::set<std::string> failing; ///< of "cloud", "local", "memory"
    std::vector<std::string> attempts;
    std::weak_ptr<platform::store::Store> last;

    [[nodiscard]] bool hasRequiredCloudKitEntitlements() const override { return cloudKit; }
    [[nodiscard]] bool hasUsableAppGroup() const override { return appGroup; }

    [[nodiscard]] std::shared_ptr<platform::store::Store>
    makeContainer(bool inMemory, bool cloudSync, bool useAppGroup) override {
        const std::string kind = inMemory ? "memory" : cloudSync ? "cloud" : "local";
        attempts.push_back(kind + (useAppGroup ? " shared" : ""));
        if (!last.expired()) {
            throw std::logic_error("the earlier store is still open");
        }
        if (failing.contains(kind)) {
            throw std::runtime_error(kind + " fails");
        }
        auto store = platform::store::Store::open(QuillmerePersistence::schema(),
                                                  {.file = {}, .inMemory = true});
        last = store;
        return store;
    }
};

} // namespace quillmere
