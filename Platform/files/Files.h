#pragma once

#include "Platform/files/FileError.h"

#include <sys/types.h>

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace platform {

/// The mode of files that only their owner reads and writes.
inline constexpr mode_t privateFileMode = 0600;

/// Makes sure that `folder` exists, creating it and missing parents with mode 0700. A folder that
/// is there already keeps its mode. Throws `FileError`.
void createPrivateFolder(const std::filesystem::path& folder);

/// Replaces the file at `path`, or creates it, in one step: readers see the old bytes or the new
/// ones, and so does the next start after a crash or power cut. The bytes go to a temporary file in
/// the same folder (a hidden one, which a crash may leave behind), are flushed to the disk, read
/// back and compared before they take the place of the old file; the folder is flushed last. The
/// file gets exactly `mode`; a symbolic link at `path` is replaced itself. Throws `FileError`; the
/// old file is then as it was, unless only the last flush failed, when the new file is already in
/// place.
void writeFileAtomically(const std::filesystem::path& path, std::string_view bytes, mode_t mode);

/// The bytes of a regular file. Throws `FileError`, of kind `tooLarge` when there are more than
/// `maximumBytes`.
[[nodiscard]] std::string readFile(const std::filesystem::path& path, std::size_t maximumBytes);

/// As above, from an open file's beginning; `path` is only for the error.
[[nodiscard]] std::string readFile(int fd, const std::filesystem::path& path,
                                   std::size_t maximumBytes);

} // namespace platform
