#include "Quillmere/widget/BusWidgetCenter.h"

#include <QtCore/QLatin1String>
#include <QtDBus/QDBusMessage>

#include <utility>

namespace quillmere {

BusWidgetCenter::BusWidgetCenter(QDBusConnection bus) : bus_(std::move(bus)) {
}

void BusWidgetCenter::reloadAllTimelines() {
    bus_.send(QDBusMessage::createSignal(QLatin1String(busPath), QLatin1String(busInterface),
                                         QLatin1String(reloadSignal)));
}

} // namespace quillmere
