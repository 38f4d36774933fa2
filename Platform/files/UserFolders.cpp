#include "Platform/files/UserFolders.h"

#include "Platform/base/UniqueFd.h"

#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <string>
#include <utility>

namespace platform {

namespace {

namespace fs = std::filesystem;

/// The absolute path in an environment variable; empty when there is none.
fs::path absolutePathIn(const char* variable) {
    const char* value = std::getenv(variable); // NOLINT(concurrency-mt-unsafe): see the header
    fs::path path(value != nullptr ? value : "");
    return path.is_absolute() ? path : fs::path();
}

fs::path homeFolder() {
    if (fs::path home = absolutePathIn("HOME"); !home.empty()) {
        return home;
    }
    passwd entry{};
    passwd* found = nullptr;
    std::array<char, 16384> buffer{};
    ::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found);
    return found != nullptr ? found->pw_dir : "/";
}

fs::path orHome(fs::path path, const char* belowHome) {
    return path.empty() ? homeFolder() / belowHome : std::move(path);
}

} // namespace

UserFolders UserFolders::ofEnvironment() {
    fs::path temporary = absolutePathIn("TMPDIR");
    std::error_code ignored;
    if (!fs::is_directory(temporary, ignored)) {
        temporary.clear();
    }
    return {orHome(absolutePathIn("XDG_DATA_HOME"), ".local/share"),
            orHome(absolutePathIn("XDG_CONFIG_HOME"), ".config"), std::move(temporary)};
}

UserFolders::UserFolders(fs::path data, fs::path configuration, fs::path temporary)
    : data_(std::move(data)),
      configuration_(std::move(configuration)),
      temporary_(std::move(temporary)) {
}

fs::path UserFolders::temporary(std::string_view name) const {
    if (!temporary_.empty()) {
        return temporary_;
    }
    fs::path own = "/tmp/" + std::string(name) + "-" + std::to_string(::geteuid());
    claimPrivateFolder(own);
    return own;
}

void claimPrivateFolder(const fs::path& folder) {
    if (::mkdir(folder.c_str(), 0700) != 0 && errno != EEXIST) {
        throw FileError::ofErrno(errno, "create folder", folder);
    }
    const UniqueFd fd(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    struct stat status {};
    if (!fd.isOpen() || ::fstat(fd.get(), &status) != 0) {
        throw FileError::ofErrno(errno, "open folder", folder);
    }
    if (status.st_uid != ::geteuid()) {
        throw FileError(FileError::Kind::noPermission,
                        "use folder " + folder.string() + ": it belongs to another user");
    }
    if ((status.st_mode & 07777) != 0700 && ::fchmod(fd.get(), 0700) != 0) {
        throw FileError::ofErrno(errno, "set the mode of", folder);
    }
}

} // namespace platform
