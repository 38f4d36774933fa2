#pragma once

#include "Platform/files/FileError.h"

#include <filesystem>
#include <string_view>

namespace platform {

/// Where the user's files belong: the XDG base directories, version 0.8, and the temporary
/// folder. Paths are only composed; nothing is created unless said.
class UserFolders {
public:
    /// As the environment says now. `XDG_DATA_HOME` and `XDG_CONFIG_HOME` that are unset, empty or
    /// relative give the defaults `~/.local/share` and `~/.config`. `TMPDIR` counts when it is an
    /// absolute path of an existing folder. The home folder is `HOME`, else the one of the user
    /// database. Not to be called while another thread changes the environment.
    [[nodiscard]] static UserFolders ofEnvironment();

    /// Folders at given places, for tests. An empty `temporary` stands for an unset `TMPDIR`.
    UserFolders(std::filesystem::path data, std::filesystem::path configuration,
                std::filesystem::path temporary);

    [[nodiscard]] const std::filesystem::path& data() const { return data_; }
    [[nodiscard]] const std::filesystem::path& configuration() const { return configuration_; }

    /// The user's temporary folder: `TMPDIR`, else the folder `name`-<user id> under `/tmp`, which
    /// is created with mode 0700 if missing. Because anyone may put something there under that
    /// name, it is only accepted as a folder (no link) that belongs to the user; its mode is set to
    /// 0700 when it differs. Throws `FileError`.
    [[nodiscard]] std::filesystem::path temporary(std::string_view name) const;

private:
    std::filesystem::path data_;
    std::filesystem::path configuration_;
    std::filesystem::path temporary_;
};

/// The part of `UserFolders::temporary` that makes `folder` the user's own, or throws `FileError`.
void claimPrivateFolder(const std::filesystem::path& folder);

} // namespace platform
