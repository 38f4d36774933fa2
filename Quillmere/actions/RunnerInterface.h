#pragma once

#include "Platform/dbus/Interface.h"
#include "Quillmere/actions/ShortcutRunner.h"

namespace quillmere {

/// The shortcuts for KRunner: org.kde.krunner1. Matches are named by the shortcuts' identifiers and
/// have no further actions; running one performs it. `shortcuts` must outlive what is answered.
[[nodiscard]] platform::dbus::Interface runnerInterface(ShortcutRunner& shortcuts);

} // namespace quillmere
