#pragma once

#include "Platform/base/UniqueFd.h"
#include "Platform/files/FileError.h"

#include <filesystem>
#include <set>
#include <string>

namespace platform {

/// What happened in a folder since it was last asked.
struct FolderChanges {
    /// Names of entries that were created, written to, replaced or removed.
    std::set<std::string> names;
    /// The folder itself came or went, or there was more than could be told: anything may differ.
    bool isEverything = false;

    [[nodiscard]] bool concern(const std::string& name) const {
        return isEverything || names.contains(name);
    }
    [[nodiscard]] bool empty() const { return !isEverything && names.empty(); }
};

/// Watches the entries of one folder, but not of folders in it, through inotify. The folder may be
/// missing, appear, go away and be recreated while it is watched; creates nothing. A folder above
/// it that is renamed while the watched one exists goes unnoticed. Confined to one thread.
class FolderWatch {
public:
    /// Begins to watch. `folder` must be absolute. Throws `FileError` when the system has no more
    /// watches to give.
    explicit FolderWatch(std::filesystem::path folder);

    /// Readable (`POLLIN`) whenever there is something to drain; the same for the watch's whole
    /// life.
    [[nodiscard]] int fd() const { return fd_.get(); }

    /// What changed since the last call, without waiting. Changes of this process are among them.
    [[nodiscard]] FolderChanges drain();

private:
    bool collect(FolderChanges& changes);
    void rearm();
    [[nodiscard]] bool watch(const std::filesystem::path& folder);

    std::filesystem::path folder_;
    UniqueFd fd_;
    int watched_ = -1;
    /// The folder watched now: `folder_`, or the nearest one above it that exists.
    std::filesystem::path watchedFolder_;
};

} // namespace platform
