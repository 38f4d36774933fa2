#pragma once

#include "Platform/dbus/Interface.h"
#include "Quillmere/actions/ShortcutRunner.h"
#include "Quillmere/actions/TimeBankActions.h"

namespace quillmere {

/// The action for scripts and launchers. Failures are D-Bus errors under
/// "dev.vantor.quillmere.Error.".
///
///     AdjustTimeBank(x minutes) -> (s dialog)
///     AdjustTimeBankOnce(s key, x minutes) -> (s dialog, s recordId, x balanceMinutes)
///         records once for each key, however often it is called; where nothing was recorded,
///         recordId is empty and the balance the one last published
///     RunShortcut(s id) -> (s dialog)
///         also shows the dialog, or the failure, as a notification
///
/// Both arguments must outlive what is answered.
[[nodiscard]] platform::dbus::Interface actionsInterface(TimeBankActions& actions,
                                                         ShortcutRunner& shortcuts);

} // namespace quillmere
