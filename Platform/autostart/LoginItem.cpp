#include "Platform/autostart/LoginItem.h"

#include "Platform/files/Files.h"

#include <unistd.h>

#include <cerrno>
#include <map>
#include <string_view>
#include <utility>

namespace platform {

namespace {

namespace fs = std::filesystem;

using Keys = std::map<std::string, std::string, std::less<>>;

constexpr std::size_t maximumEntryBytes = 65536;
constexpr std::string_view groupHeader = "[Desktop Entry]";
constexpr std::string_view blanks = " \t\r";

std::string_view trimmed(std::string_view text) {
    const std::size_t start = text.find_first_not_of(blanks);
    return start == std::string_view::npos
               ? std::string_view()
               : text.substr(start, text.find_last_not_of(blanks) - start + 1);
}

/// The keys of the main group.
Keys keysOf(std::string_view text) {
    Keys keys;
    bool inGroup = false;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        const std::string_view line = trimmed(text.substr(start, end - start));
        start = end + 1;
        if (line.starts_with('[')) {
            inGroup = line == groupHeader;
        } else if (const std::size_t equals = line.find('=');
                   inGroup && equals != std::string_view::npos) {
            keys.emplace(trimmed(line.substr(0, equals)), trimmed(line.substr(equals + 1)));
        }
    }
    return keys;
}

bool has(const Keys& keys, std::string_view key, std::string_view value) {
    const auto found = keys.find(key);
    return found != keys.end() && found->second == value;
}

/// A path as one argument of the key "Exec" (freedesktop.org, Desktop Entry 1.5): quoted, its field
/// codes doubled, and then escaped as every string value.
std::string execArgument(std::string_view path) {
    std::string argument = "\"";
    for (const char c : path) {
        if (c == '"' || c == '`' || c == '$') {
            argument += "\\\\";
        } else if (c == '\\') {
            argument += "\\\\\\";
        } else if (c == '%') {
            argument += '%';
        }
        argument += c;
    }
    return argument + '"';
}

} // namespace

LoginItem::LoginItem(const fs::path& configuration, std::string desktopId, std::string name,
                     fs::path program)
    : file_(configuration / "autostart" / (desktopId + ".desktop")),
      desktopId_(std::move(desktopId)),
      name_(std::move(name)),
      program_(std::move(program)) {
}

LoginItem::Status LoginItem::status() const {
    Keys keys;
    try {
        keys = keysOf(readFile(file_, maximumEntryBytes));
    } catch (const FileError&) {
        return Status::notRegistered;
    }
    if (keys.empty()) {
        return Status::notRegistered;
    }
    const bool isOff =
        has(keys, "Hidden", "true") || has(keys, "X-GNOME-Autostart-enabled", "false");
    return isOff ? Status::requiresApproval : Status::enabled;
}

void LoginItem::add() {
    if (status() != Status::requiresApproval) {
        createPrivateFolder(folder());
        writeFileAtomically(file_, entry(), privateFileMode);
    }
}

void LoginItem::remove() {
    if (::unlink(file_.c_str()) != 0 && errno != ENOENT) {
        throw FileError::ofErrno(errno, "remove", file_);
    }
}

std::string LoginItem::entry() const {
    return std::string(groupHeader) + "\nType=Application\nName=" + name_ +
           "\nExec=" + execArgument(program_.string()) + "\nIcon=" + desktopId_ +
           "\nTerminal=false\nX-GNOME-Autostart-enabled=true\n";
}

} // namespace platform
