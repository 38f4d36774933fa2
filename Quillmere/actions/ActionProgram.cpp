#include "Quillmere/actions/ActionProgram.h"

#include "Platform/dbus/SessionBus.h"
#include "Quillmere/actions/ActionFailure.h"
#include "Quillmere/actions/ActionsInterface.h"
#include "Quillmere/actions/BusNames.h"
#include "Quillmere/actions/RunnerInterface.h"
#include "Quillmere/actions/SearchProviderInterface.h"
#include "Quillmere/actions/SessionBusWidgetCenter.h"
#include "Quillmere/actions/ShortcutRunner.h"
#include "Quillmere/actions/TimeBankActions.h"
#include "Quillmere/app/Version.h"

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

namespace quillmere {

namespace {

using platform::dbus::BusError;
using platform::dbus::SessionBus;

constexpr int badUsage = 2;

void complain(const std::string& words) {
    std::fputs(("quillmere-actions: " + words + "\n").c_str(), stderr);
}

int serve() {
    SessionBus bus;
    SessionBusWidgetCenter widgets(&bus);
    TimeBankActions actions(widgets);
    ShortcutRunner shortcuts(actions, &bus);
    bus.publish(BusNames::actionsPath, actionsInterface(actions, shortcuts));
    bus.publish(BusNames::searchProviderPath, searchProviderInterface(shortcuts, bus));
    bus.publish(BusNames::runnerPath, runnerInterface(shortcuts));
    if (!bus.own(BusNames::service)) {
        complain("another one serves already");
        return EXIT_SUCCESS;
    }
    bus.serve(ActionProgram::idleTime, [&] { actions.letGo(); });
    return EXIT_SUCCESS;
}

std::unique_ptr<SessionBus> busIfAny() {
    try {
        return std::make_unique<SessionBus>();
    } catch (const BusError&) {
        return nullptr;
    }
}

int runShortcut(const std::string& id) {
    const auto bus = busIfAny();
    SessionBusWidgetCenter widgets(bus.get());
    TimeBankActions actions(widgets);
    ShortcutRunner shortcuts(actions, bus.get());
    int status = EXIT_SUCCESS;
    try {
        std::puts(shortcuts.run(id).c_str());
    } catch (const UnknownShortcut& error) {
        complain(error.what());
        return badUsage;
    } catch (const std::exception& error) {
        complain(ActionFailure::of(error).sentence + " (" + error.what() + ")");
        status = EXIT_FAILURE;
    }
    std::fflush(stdout);
    actions.letGo();
    // GNOME Shell takes a notification away when its sender leaves the bus.
    if (bus) {
        bus->serve(ActionProgram::idleTime);
    }
    return status;
}

} // namespace

int ActionProgram::run(const CommandLine& line) try {
    switch (line.task) {
    case CommandLine::Task::version:
        std::printf("quillmere-actions %s\n", versionText);
        return EXIT_SUCCESS;
    case CommandLine::Task::help:
        std::fputs(CommandLine::usage, stdout);
        return EXIT_SUCCESS;
    case CommandLine::Task::shortcut:
        return runShortcut(line.shortcutId);
    case CommandLine::Task::serve:
        break;
    }
    return serve();
} catch (const BusError& error) {
    complain(error.what());
    return EXIT_FAILURE;
}

} // namespace quillmere
