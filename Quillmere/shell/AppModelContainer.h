#pragma once

#include "Platform/log/Log.h"
#include "Platform/store/Store.h"
#include "Quillmere/shell/StoreOpener.h"
#include "QuillmereKit/persistence/PersistenceMode.h"

#include <memory>
#include <string_view>

namespace quillmere {

/// Opens the record store with the best mode there is. Every failure is logged under the category
/// "Persistence" and absorbed by the next attempt.
class AppModelContainer {
public:
    struct Result {
        /// The opened store; null exactly when the mode is `unavailable`.
        std::shared_ptr<platform::store::Store> container;
        PersistenceMode mode = PersistenceMode::unavailable;
    };

    /// Both must outlive the object.
    AppModelContainer(StoreOpener& opener, platform::LogSink& log);

    /// The order of attempts at launch: synchronised, then `localFallback`.
    [[nodiscard]] Result make();

    /// Synchronised only; a result without container when the build is not entitled to it or it
    /// fails. Logs nothing.
    [[nodiscard]] Result synchronised();

    /// On disk on this device, then in memory, then nothing.
    [[nodiscard]] Result localFallback();

    /// For a store that was opened and then could not be read.
    void logUnreadable(std::string_view reason) const;

private:
    [[nodiscard]] Result openSynchronised();

    StoreOpener& opener_;
    platform::Log log_;
};

} // namespace quillmere
