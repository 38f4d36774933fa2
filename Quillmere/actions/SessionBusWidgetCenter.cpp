#include "Quillmere/actions/SessionBusWidgetCenter.h"

namespace quillmere {

void SessionBusWidgetCenter::reloadAllTimelines() {
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
