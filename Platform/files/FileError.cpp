#include "Platform/files/FileError.h"

#include <cerrno>
#include <system_error>

namespace platform {

namespace {

FileError::Kind kindOf(int number) {
    switch (number) {
    case ENOENT:
    case ENOTDIR:
        return FileError::Kind::notFound;
    case EACCES:
    case EPERM:
    case EROFS:
        return FileError::Kind::noPermission;
    case ENOSPC:
    case EDQUOT:
        return FileError::Kind::diskFull;
    case EFBIG:
        return FileError::Kind::tooLarge;
    default:
        return FileError::Kind::other;
    }
}

} // namespace

FileError FileError::ofErrno(int number, const std::string& action,
                             const std::filesystem::path& path) {
    return {kindOf(number),
            action + " " + path.string() + ": " + std::generic_category().message(number)};
}

} // namespace platform
