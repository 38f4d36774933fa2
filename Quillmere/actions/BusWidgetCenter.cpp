#include "Quillmere/actions/BusWidgetCenter.h"

namespace quillmere {

void BusWidgetCenter::reloadAllTimelines() {
    if (bus_ == nullptr) {
        return;
    }
    try {
        bus_->emitSignal(busPath, busInterface, reloadSignal);
    } catch (const platform::dbus::BusError&) { // NOLINT(bugprone-empty-catch)
        // The change is recorded; who has left the bus needs no telling.
    }
}

} // namespace quillmere
