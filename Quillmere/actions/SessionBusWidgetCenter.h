#pragma once

#include "Platform/dbus/SessionBus.h"
#include "QuillmereKit/widget/WidgetCenter.h"

namespace quillmere {

/// Reaches those who draw widgets over a connection that the program has anyhow.
class SessionBusWidgetCenter final : public WidgetCenter {
public:
    /// `bus` must outlive the object; null where there is none.
    explicit SessionBusWidgetCenter(platform::dbus::SessionBus* bus) : bus_(bus) {}

    void reloadAllTimelines() override;

private:
    platform::dbus::SessionBus* bus_;
};

} // namespace quillmere
