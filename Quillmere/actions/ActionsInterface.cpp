#include "Quillmere/actions/ActionsInterface.h"

#include "Platform/dbus/MethodError.h"
#include "Quillmere/actions/ActionFailure.h"
#include "Quillmere/actions/BusNames.h"

#include <cstdint>
#include <functional>
#include <string>
#include <tuple>

namespace quillmere {

namespace {

using platform::dbus::MethodError;

constexpr auto invalidArguments = "org.freedesktop.DBus.Error.InvalidArgs";

/// What `action` answers; what it throws becomes the error that the caller gets.
template <class Action>
auto answered(const Action& action) {
    try {
        return action();
    } catch (const UnknownShortcut& error) {
        throw MethodError(invalidArguments, error.what());
    } catch (const std::exception& error) {
        const auto failure = ActionFailure::of(error);
        const std::string details = failure.details.empty() ? "" : " (" + failure.details + ")";
        throw MethodError(failure.errorName, failure.sentence + details);
    }
}

using KeyedAnswer = std::tuple<std::string, std::string, std::int64_t>;

KeyedAnswer adjustOnce(TimeBankActions& actions, const std::string& key, std::int64_t minutes) {
    const auto [result, booking] = actions.adjustOnce(key, minutes);
    const std::string dialog(result.dialog);
    return booking ? KeyedAnswer{dialog, booking->recordId.text(), booking->balanceMinutes}
                   : KeyedAnswer{dialog, "", actions.publishedBalanceMinutes()};
}

} // namespace

platform::dbus::Interface actionsInterface(TimeBankActions& actions, ShortcutRunner& shortcuts) {
    platform::dbus::Interface interface(BusNames::actionsInterface);
    interface.add("AdjustTimeBank", {"minutes"}, {"dialog"},
                  std::function([&actions](std::int64_t minutes) {
                      return answered([&] { return std::string(actions.adjust(minutes).dialog); });
                  }));
    interface.add("AdjustTimeBankOnce", {"key", "minutes"},
                  {"dialog", "recordId", "balanceMinutes"},
                  std::function([&actions](const std::string& key, std::int64_t minutes) {
                      return answered([&] { return adjustOnce(actions, key, minutes); });
                  }));
    interface.add("RunShortcut", {"id"}, {"dialog"},
                  std::function([&shortcuts](const std::string& id) {
                      return answered([&] { return shortcuts.run(id); });
                  }));
    return interface;
}

} // namespace quillmere
