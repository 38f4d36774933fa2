#pragma once

#include "Platform/dbus/Interface.h"
#include "Platform/dbus/SessionBus.h"
#include "Quillmere/actions/ShortcutRunner.h"

namespace quillmere {

/// The shortcuts for GNOME Shell's search: org.gnome.Shell.SearchProvider2. Results are named by
/// the shortcuts' identifiers; choosing one performs it. Asking for all results brings the
/// application forward through `bus`. Both arguments must outlive what is answered.
[[nodiscard]] platform::dbus::Interface searchProviderInterface(ShortcutRunner& shortcuts,
                                                                platform::dbus::SessionBus& bus);

} // namespace quillmere
