#include "Quillmere/shell/AppModelContainer.h"

#include "Quillmere/shell/AppModelContainerError.h"

#include <exception>

namespace quillmere {

using platform::LogLevel;
using platform::PrivateText;

AppModelContainer::AppModelContainer(StoreOpener& opener, platform::LogSink& log)
    : opener_(opener), log_(log, "dev.vantor.quillmere", "Persistence") {
}

AppModelContainer::Result AppModelContainer::make() {
    if (!opener_.hasRequiredCloudKitEntitlements()) {
        log_.write(LogLevel::standard,
                   "CloudKit entitlements are unavailable; using local storage.");
        return localFallback();
    }
    try {
        return openSynchronised();
    } catch (const std::exception& error) {
        log_.write(LogLevel::error, "Cloud-backed store unavailable: ", PrivateText{error.what()});
        return localFallback();
    }
}

AppModelContainer::Result AppModelContainer::synchronised() {
    try {
        return openSynchronised();
    } catch (const std::exception&) {
        return {};
    }
}

void AppModelContainer::logUnreadable(std::string_view reason) const {
    log_.write(LogLevel::error, "The store could not be read: ", PrivateText{reason});
}

AppModelContainer::Result AppModelContainer::openSynchronised() {
    if (!opener_.hasRequiredCloudKitEntitlements()) {
        throw AppModelContainerError::cloudKitEntitlementsUnavailable();
    }
    return {opener_.makeContainer(false, true, true), PersistenceMode::iCloud};
}

AppModelContainer::Result AppModelContainer::localFallback() {
    try {
        return {opener_.makeContainer(false, false, opener_.hasUsableAppGroup()),
                PersistenceMode::localOnly};
    } catch (const std::exception& error) {
        log_.write(LogLevel::error, "Persistent store unavailable: ", PrivateText{error.what()});
    }
    try {
        return {opener_.makeContainer(true, false, true), PersistenceMode::temporary};
    } catch (const std::exception& error) {
        log_.write(LogLevel::fault,
                   "Emergency in-memory store unavailable: ", PrivateText{error.what()});
    }
    return {};
}

} // namespace quillmere
