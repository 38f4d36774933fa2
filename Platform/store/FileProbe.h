#pragma once

#include <cstdint>
#include <filesystem>

namespace platform::store {

/// What can be told of a store's file without SQLite opening it, and so without leaving a trace: no
/// log is created, no journal mode changed, and, because the file is read through the VFS, no lock
/// of this process is dropped.
struct FileProbe {
    bool isNew = true; ///< missing or empty
    std::int32_t applicationId = 0;
    int schemaVersion = 0; ///< as of the latest checkpoint
    bool hasLog = false;   ///< saves may stand in the log that are not in the file yet

    /// Throws `damaged` when the file is not an SQLite database or shorter than it says,
    /// `cannotOpen` or `io` when it cannot be read.
    [[nodiscard]] static FileProbe read(const std::filesystem::path& file, const char* vfs);
};

} // namespace platform::store
