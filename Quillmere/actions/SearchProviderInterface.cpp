#include "Quillmere/actions/SearchProviderInterface.h"

#include "Quillmere/actions/BusNames.h"
#include "QuillmereKit/actions/QuillmereShortcuts.h"

#include <algorithm>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace quillmere {

namespace {

using platform::dbus::Details;
using Texts = std::vector<std::string>;

Texts resultsFor(const Texts& terms) {
    Texts ids;
    for (const auto* shortcut : QuillmereShortcuts::matching(terms, BusNames::applicationName)) {
        ids.emplace_back(shortcut->id);
    }
    return ids;
}

Texts resultsAmong(const Texts& previous, const Texts& terms) {
    Texts ids = resultsFor(terms);
    std::erase_if(ids, [&](const std::string& id) {
        return std::find(previous.begin(), previous.end(), id) == previous.end();
    });
    return ids;
}

std::vector<Details> describe(const Texts& ids) {
    std::vector<Details> descriptions;
    for (const std::string& id : ids) {
        if (const auto* shortcut = QuillmereShortcuts::find(id)) {
            descriptions.push_back(
                {{"id", id},
                 {"name", std::string(shortcut->shortTitle)},
                 {"description", QuillmereShortcuts::phraseText(shortcut->phrases.front(),
                                                                BusNames::applicationName)},
                 {"gicon", BusNames::application}});
        }
    }
    return descriptions;
}

void bringForward(platform::dbus::SessionBus& bus) {
    bus.send({BusNames::application, BusNames::applicationPath, "org.freedesktop.Application"},
             "Activate", Details{});
}

} // namespace

platform::dbus::Interface searchProviderInterface(ShortcutRunner& shortcuts,
                                                  platform::dbus::SessionBus& bus) {
    platform::dbus::Interface interface("org.gnome.Shell.SearchProvider2");
    interface.add("GetInitialResultSet", {"terms"}, {"results"}, std::function(resultsFor));
    interface.add("GetSubsearchResultSet", {"previous_results", "terms"}, {"results"},
                  std::function(resultsAmong));
    interface.add("GetResultMetas", {"identifiers"}, {"metas"}, std::function(describe));
    interface.add(
        "ActivateResult", {"identifier", "terms", "timestamp"}, {},
        std::function([&shortcuts](const std::string& id, const Texts& /*terms*/,
                                   std::uint32_t /*timestamp*/) { (void)shortcuts.run(id); }));
    interface.add("LaunchSearch", {"terms", "timestamp"}, {},
                  std::function([&bus](const Texts& /*terms*/, std::uint32_t /*timestamp*/) {
                      bringForward(bus);
                  }));
    return interface;
}

} // namespace quillmere
