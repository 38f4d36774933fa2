#pragma once

#include "Platform/files/FileError.h"

#include <filesystem>
#include <string>

namespace platform {

/// A program's place among those that the desktop starts when the user logs in: a desktop entry in
/// the user's autostart folder (freedesktop.org, Desktop Application Autostart 0.5). Every answer
/// is read from the entry anew.
class LoginItem {
public:
    enum class Status {
        notRegistered,    ///< there is no entry, or none that a desktop would understand
        enabled,          ///< the desktop starts the program
        requiresApproval, ///< there is an entry, but the user switched it off in the desktop
    };

    /// `configuration` is the user's configuration folder. `desktopId` names the entry, without
    /// ".desktop", and the icon; `name` is the program's as the desktop shows it; `program` is the
    /// absolute path of what is started.
    LoginItem(const std::filesystem::path& configuration, std::string desktopId, std::string name,
              std::filesystem::path program);

    /// An entry that cannot be read counts as none.
    [[nodiscard]] Status status() const;

    /// Makes sure that there is an entry for the program. One that the user switched off stays so.
    /// Throws `FileError`.
    void add();
    /// Removes the entry, if there is one. Throws `FileError`.
    void remove();

    /// The folder of the entry, which need not exist.
    [[nodiscard]] std::filesystem::path folder() const { return file_.parent_path(); }

private:
    [[nodiscard]] std::string entry() const;

    std::filesystem::path file_;
    std::string desktopId_;
    std::string name_;
    std::filesystem::path program_;
};

} // namespace platform
