#include "Platform/autostart/LoginItemsSettings.h"

#include <unistd.h>

#include <algorithm>
#include <initializer_list>

namespace platform {

namespace {

using Command = std::vector<std::string>;

struct Page {
    std::string_view desktop;
    Command command;
};

/// Better pages of a desktop come first.
const std::initializer_list<Page>& pages() {
    static const std::initializer_list<Page> all{
        {"GNOME", {"gnome-session-properties"}},
        {"GNOME", {"gnome-tweaks"}},
        {"GNOME", {"gnome-control-center", "applications"}},
        {"KDE", {"systemsettings", "kcm_autostart"}},
        {"KDE", {"systemsettings5", "kcm_autostart"}},
        {"XFCE", {"xfce4-session-settings"}},
    };
    return all;
}

std::vector<std::string> piecesOf(std::string_view text) {
    std::vector<std::string> pieces;
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find(':', start), text.size());
        pieces.emplace_back(text.substr(start, end - start));
        start = end + 1;
    }
    return pieces;
}

bool isInstalled(const std::string& program, const std::vector<std::string>& folders) {
    return std::any_of(folders.begin(), folders.end(), [&](const std::string& folder) {
        return !folder.empty() && ::access((folder + '/' + program).c_str(), X_OK) == 0;
    });
}

} // namespace

std::optional<Command> loginItemsSettings(std::string_view currentDesktop,
                                          std::string_view searchPath) {
    const auto folders = piecesOf(searchPath);
    for (const std::string& desktop : piecesOf(currentDesktop)) {
        for (const Page& page : pages()) {
            if (page.desktop == desktop && isInstalled(page.command.front(), folders)) {
                return page.command;
            }
        }
    }
    return std::nullopt;
}

} // namespace platform
