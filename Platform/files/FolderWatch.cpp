#include "Platform/files/FolderWatch.h"

#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <string_view>
#include <utility>

namespace platform {

namespace {

namespace fs = std::filesystem;

constexpr std::uint32_t entryEvents =
    IN_CREATE | IN_MODIFY | IN_CLOSE_WRITE | IN_MOVED_FROM | IN_MOVED_TO | IN_DELETE;
constexpr std::uint32_t appearanceEvents = IN_CREATE | IN_MOVED_TO;
constexpr std::uint32_t folderEvents = IN_DELETE_SELF | IN_MOVE_SELF | IN_ONLYDIR;
constexpr std::uint32_t lossEvents =
    IN_DELETE_SELF | IN_MOVE_SELF | IN_IGNORED | IN_UNMOUNT | IN_Q_OVERFLOW;

/// Calls `handle(event, name)` for every event that waits at `fd`.
template <typename Handle>
void forEachEvent(int fd, Handle handle) {
    alignas(inotify_event) std::array<char, 16384> buffer{};
    for (;;) {
        const ssize_t count = ::read(fd, buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            return;
        }
        for (const char* next = buffer.data(); next < buffer.data() + count;) {
            inotify_event event{};
            std::memcpy(&event, next, sizeof event);
            handle(event, event.len > 0 ? next + sizeof event : "");
            next += sizeof event + event.len;
        }
    }
}

} // namespace

FolderWatch::FolderWatch(fs::path folder)
    : folder_(std::move(folder)), fd_(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
    if (!fd_.isOpen()) {
        throw FileError::ofErrno(errno, "watch", folder_);
    }
    rearm();
}

FolderChanges FolderWatch::drain() {
    FolderChanges changes;
    while (collect(changes)) {
        const bool wasThere = watchedFolder_ == folder_;
        rearm();
        changes.isEverything |= wasThere || watchedFolder_ == folder_;
    }
    return changes;
}

/// Takes all waiting events. Answers whether another folder may have to be watched now.
bool FolderWatch::collect(FolderChanges& changes) {
    bool mustRearm = false;
    forEachEvent(fd_.get(), [&](const inotify_event& event, const char* name) {
        if ((event.mask & IN_Q_OVERFLOW) == 0 && event.wd != watched_) {
            return;
        }
        if (watchedFolder_ != folder_ || (event.mask & lossEvents) != 0) {
            mustRearm = true;
        } else if (*name != '\0') {
            changes.names.insert(name);
        }
    });
    return mustRearm;
}

bool FolderWatch::watch(const fs::path& folder) {
    const int watched = ::inotify_add_watch(fd_.get(), folder.c_str(), entryEvents | folderEvents);
    if (watched < 0) {
        if (errno == ENOSPC || errno == ENOMEM) {
            throw FileError::ofErrno(errno, "watch", folder);
        }
        return false;
    }
    if (watched_ >= 0 && watched_ != watched) {
        ::inotify_rm_watch(fd_.get(), watched_);
    }
    watched_ = watched;
    watchedFolder_ = folder;
    return true;
}

void FolderWatch::rearm() {
    // What appears between looking for it and watching the folder above is found by looking again.
    int last = 0;
    do {
        last = watched_;
        fs::path candidate = folder_;
        while (!watch(candidate) && candidate.has_relative_path()) {
            candidate = candidate.parent_path();
        }
    } while (watchedFolder_ != folder_ && watched_ != last);
}

} // namespace platform
