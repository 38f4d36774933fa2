#include "Platform/preferences/PreferencesFile.h"

#include "Platform/base/Uuid.h"
#include "Platform/files/Files.h"

#include <fcntl.h>

#include <cerrno>
#include <tuple>
#include <utility>

namespace platform {

namespace {

/// Far more than preferences need, binary values included.
constexpr std::size_t maximumFileBytes = 64U << 20;

auto identity(const struct stat& status) {
    return std::tuple(status.st_dev, status.st_ino, status.st_size, status.st_mtim.tv_sec,
                      status.st_mtim.tv_nsec, status.st_ctim.tv_sec, status.st_ctim.tv_nsec);
}

} // namespace

PreferencesFile::PreferencesFile(std::filesystem::path path) : path_(std::move(path)) {
}

bool PreferencesFile::refresh() {
    struct stat status {};
    if (::stat(path_.c_str(), &status) != 0) {
        const State state =
            errno == ENOENT || errno == ENOTDIR ? State::missing : State::inaccessible;
        document_.reset();
        fd_.reset();
        return std::exchange(state_, state) != state;
    }
    if (fd_.isOpen() && identity(status) == identity(status_)) {
        return false;
    }
    const State before = state_;
    read();
    return before != State::inaccessible || state_ != State::inaccessible;
}

void PreferencesFile::read() {
    document_.reset();
    state_ = State::inaccessible;
    fd_.reset(::open(path_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!fd_.isOpen() || ::fstat(fd_.get(), &status_) != 0) {
        return;
    }
    try {
        document_ = json::parse(readFile(fd_.get(), path_, maximumFileBytes));
        state_ = document_->root().object() ? State::readable : State::damaged;
    } catch (const json::JsonError&) {
        state_ = State::damaged;
    } catch (const FileError&) { // NOLINT(bugprone-empty-catch): it stays inaccessible
    }
}

std::optional<json::Object> PreferencesFile::members() const {
    return document_ ? document_->root().object() : std::nullopt;
}

void PreferencesFile::replace(std::string_view text) {
    if (state_ == State::damaged) {
        const auto aside = path_.parent_path() / ("damaged-" + Uuid::random().text() + ".json");
        if (::rename(path_.c_str(), aside.c_str()) != 0) {
            throw FileError::ofErrno(errno, "keep aside", path_);
        }
    }
    writeFileAtomically(path_, text, privateFileMode);
}

} // namespace platform
