#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>

namespace platform {

/// A file operation that failed. `what()` names the operation, the path and the reason, for a log.
class FileError final : public std::runtime_error {
public:
    enum class Kind {
        notFound,     ///< the file, or a folder on its way, does not exist
        noPermission, ///< not allowed, or the file system is read-only
        diskFull,     ///< no space, or the user's quota is used up
        tooLarge,     ///< larger than the caller accepts
        other,
    };

    FileError(Kind kind, const std::string& what) : std::runtime_error(what), kind_(kind) {}

    /// The error of a system call: what was tried on which path, and its error number.
    [[nodiscard]] static FileError ofErrno(int number, const std::string& action,
                                           const std::filesystem::path& path);

    [[nodiscard]] Kind kind() const { return kind_; }

private:
    Kind kind_;
};

} // namespace platform
