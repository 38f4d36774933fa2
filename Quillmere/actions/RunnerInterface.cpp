#include "Quillmere/actions/RunnerInterface.h"

#include "Quillmere/actions/BusNames.h"
#include "QuillmereKit/actions/QuillmereShortcuts.h"

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <tuple>
#include <vector>

namespace quillmere {

namespace {

using platform::dbus::Details;

/// Identifier, text, icon, kind, relevance from 0 to 1, and details.
using Match = std::tuple<std::string, std::string, std::string, std::int32_t, double, Details>;
/// Identifier, text and icon.
using Action = std::tuple<std::string, std::string, std::string>;

constexpr std::int32_t possibleMatch = 30; // KRunner::QueryMatch::PossibleMatch
constexpr double relevance = 0.8;

Match matchOf(const QuillmereShortcuts::Shortcut& shortcut) {
    return {std::string(shortcut.id),
            std::string(shortcut.shortTitle),
            BusNames::application,
            possibleMatch,
            relevance,
            {{"subtext", QuillmereShortcuts::phraseText(shortcut.phrases.front(),
                                                        BusNames::applicationName)}}};
}

std::vector<Match> matchesFor(const std::string& query) {
    std::vector<Match> matches;
    for (const auto* shortcut :
         QuillmereShortcuts::matching(std::span(&query, 1), BusNames::applicationName)) {
        matches.push_back(matchOf(*shortcut));
    }
    return matches;
}

} // namespace

platform::dbus::Interface runnerInterface(ShortcutRunner& shortcuts) {
    platform::dbus::Interface interface("org.kde.krunner1");
    interface.add("Actions", {}, {"actions"}, std::function([] { return std::vector<Action>(); }));
    interface.add("Match", {"query"}, {"matches"}, std::function(matchesFor));
    interface.add(
        "Run", {"matchId", "actionId"}, {},
        std::function([&shortcuts](const std::string& match, const std::string& /*action*/) {
            (void)shortcuts.run(match);
        }));
    return interface;
}

} // namespace quillmere
