#pragma once

#include "Platform/dbus/SessionBus.h"
#include "Quillmere/actions/TimeBankActions.h"
#include "QuillmereKit/actions/QuillmereShortcuts.h"

#include <stdexcept>
#include <string>
#include <string_view>

namespace quillmere {

/// There is no shortcut of that name. `what()` is a sentence.
class UnknownShortcut final : public std::invalid_argument {
public:
    UnknownShortcut() : std::invalid_argument("There is no such shortcut.") {}
};

/// Performs the ready-made shortcuts and shows how each ended as a desktop notification (Desktop
/// Notifications 1.2). Where nobody shows notifications, nothing is shown.
class ShortcutRunner {
public:
    /// Both must outlive the object; `bus` is null where there is none.
    ShortcutRunner(TimeBankActions& actions, platform::dbus::SessionBus* bus)
        : actions_(actions), bus_(bus) {}

    /// Answers the dialog that was shown. Throws `UnknownShortcut`, else what the action throws,
    /// after having shown that as well.
    [[nodiscard]] std::string run(const std::string& id);

private:
    [[nodiscard]] std::string perform(const QuillmereShortcuts::Shortcut& shortcut);
    void notify(std::string_view summary, std::string_view body);

    TimeBankActions& actions_;
    platform::dbus::SessionBus* bus_;
};

} // namespace quillmere
