#include "Quillmere/actions/ShortcutRunner.h"

#include "Quillmere/actions/ActionFailure.h"
#include "Quillmere/actions/BusNames.h"

#include <cstdint>
#include <vector>

namespace quillmere {

namespace {

using platform::dbus::Details;

const platform::dbus::Destination& notifications() {
    static const platform::dbus::Destination destination{"org.freedesktop.Notifications",
                                                         "/org/freedesktop/Notifications",
                                                         "org.freedesktop.Notifications"};
    return destination;
}

constexpr std::uint32_t replacesNone = 0;
constexpr std::int32_t shownAsLongAsUsual = -1;

} // namespace

std::string ShortcutRunner::run(const std::string& id) {
    const auto* shortcut = QuillmereShortcuts::find(id);
    if (shortcut == nullptr) {
        throw UnknownShortcut();
    }
    return perform(*shortcut);
}

std::string ShortcutRunner::perform(const QuillmereShortcuts::Shortcut& shortcut) {
    try {
        const auto result = actions_.adjust(shortcut.minutes);
        notify(shortcut.shortTitle, result.dialog);
        return std::string(result.dialog);
    } catch (const std::exception& error) {
        notify(shortcut.shortTitle, ActionFailure::of(error).sentence);
        throw;
    }
}

void ShortcutRunner::notify(std::string_view summary, std::string_view body) {
    if (bus_ == nullptr) {
        return;
    }
    try {
        bus_->send(notifications(), "Notify", std::string(BusNames::applicationName), replacesNone,
                   std::string(BusNames::application), std::string(summary), std::string(body),
                   std::vector<std::string>{}, Details{{"desktop-entry", BusNames::application}},
                   shownAsLongAsUsual);
    } catch (const platform::dbus::BusError&) { // NOLINT(bugprone-empty-catch)
        // The change is recorded, and whoever called is answered all the same.
    }
}

} // namespace quillmere
