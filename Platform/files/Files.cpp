#include "Platform/files/Files.h"

#include "Platform/base/UniqueFd.h"
#include "Platform/base/Uuid.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

namespace platform {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void throwErrno(const std::string& action, const fs::path& path) {
    throw FileError::ofErrno(errno, action, path);
}

void check(int result, const std::string& action, const fs::path& path) {
    if (result != 0) {
        throwErrno(action, path);
    }
}

UniqueFd openFolder(const fs::path& folder) {
    UniqueFd fd(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!fd.isOpen()) {
        throwErrno("open folder", folder);
    }
    return fd;
}

/// Reads up to `size` bytes at `offset`; fewer only at the end of the file.
std::size_t readAt(int fd, char* buffer, std::size_t size, std::size_t offset,
                   const fs::path& path) {
    std::size_t done = 0;
    while (done < size) {
        const ssize_t count =
            ::pread(fd, buffer + done, size - done, static_cast<off_t>(offset + done));
        if (count == 0) {
            break;
        }
        if (count > 0) {
            done += static_cast<std::size_t>(count);
        } else if (errno != EINTR) {
            throwErrno("read", path);
        }
    }
    return done;
}

/// The replacement of a file while it is being written. Goes away unless it is put in place.
class TemporaryFile {
public:
    TemporaryFile(int folder, const fs::path& target)
        : folder_(folder),
          name_("." + Uuid::random().text() + ".tmp"),
          target_(target),
          fd_(::openat(folder, name_.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600)) {
        if (!fd_.isOpen()) {
            throwErrno("create a file beside", target);
        }
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        if (!isInPlace_) {
            ::unlinkat(folder_, name_.c_str(), 0);
        }
    }

    void write(std::string_view bytes) {
        while (!bytes.empty()) {
            const ssize_t count = ::write(fd_.get(), bytes.data(), bytes.size());
            if (count >= 0) {
                bytes.remove_prefix(static_cast<std::size_t>(count));
            } else if (errno != EINTR) {
                throwErrno("write", target_);
            }
        }
    }

    void flush(mode_t mode) {
        check(::fchmod(fd_.get(), mode), "set the mode of", target_);
        check(::fsync(fd_.get()), "flush", target_);
    }

    void verify(std::string_view bytes) {
        std::array<char, 65536> buffer{};
        std::size_t offset = 0;
        std::size_t count = 0;
        do {
            count = readAt(fd_.get(), buffer.data(), buffer.size(), offset, target_);
            if (bytes.substr(offset, buffer.size()) != std::string_view(buffer.data(), count)) {
                throw FileError(FileError::Kind::other,
                                "write " + target_.string() + ": read back other bytes");
            }
            offset += count;
        } while (count == buffer.size());
    }

    void putInPlace() {
        check(::renameat(folder_, name_.c_str(), folder_, target_.filename().c_str()), "replace",
              target_);
        isInPlace_ = true;
    }

private:
    int folder_;
    std::string name_;
    const fs::path& target_;
    UniqueFd fd_;
    bool isInPlace_ = false;
};

void flushFolder(int folder, const fs::path& path) {
    // Some file systems cannot flush a folder and say so with EINVAL.
    if (::fsync(folder) != 0 && errno != EINVAL) {
        throwErrno("flush the folder of", path);
    }
}

} // namespace

void createPrivateFolder(const fs::path& folder) {
    std::error_code ignored;
    if (fs::is_directory(folder, ignored)) {
        return;
    }
    const fs::path parent = folder.parent_path();
    if (folder.has_relative_path() && !parent.empty()) {
        createPrivateFolder(parent);
    }
    if (::mkdir(folder.c_str(), 0700) == 0) {
        flushFolder(openFolder(parent.empty() ? fs::path(".") : parent).get(), folder);
    } else if (const int error = errno; !fs::is_directory(folder, ignored)) {
        throw FileError::ofErrno(error, "create folder", folder);
    }
}

void writeFileAtomically(const fs::path& path, std::string_view bytes, mode_t mode) {
    const UniqueFd folder = openFolder(path.has_parent_path() ? path.parent_path() : fs::path("."));
    TemporaryFile file(folder.get(), path);
    file.write(bytes);
    file.flush(mode);
    file.verify(bytes);
    file.putInPlace();
    flushFolder(folder.get(), path);
}

std::string readFile(int fd, const fs::path& path, std::size_t maximumBytes) {
    struct stat status {};
    check(::fstat(fd, &status), "examine", path);
    if (!S_ISREG(status.st_mode)) {
        throw FileError(FileError::Kind::other, "read " + path.string() + ": not a regular file");
    }
    const auto size = static_cast<std::size_t>(status.st_size);
    if (size > maximumBytes) {
        throw FileError::ofErrno(EFBIG, "read", path);
    }
    // One byte more than expected shows whether the file has grown meanwhile.
    std::string bytes(size + 1, '\0');
    std::size_t count = readAt(fd, bytes.data(), bytes.size(), 0, path);
    while (count == bytes.size() && count <= maximumBytes) {
        bytes.resize(std::min(2 * count, maximumBytes + 1));
        count += readAt(fd, bytes.data() + count, bytes.size() - count, count, path);
    }
    if (count > maximumBytes) {
        throw FileError::ofErrno(EFBIG, "read", path);
    }
    bytes.resize(count);
    return bytes;
}

std::string readFile(const fs::path& path, std::size_t maximumBytes) {
    // Not to wait for a writer should the path be a pipe.
    const UniqueFd fd(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!fd.isOpen()) {
        throwErrno("open", path);
    }
    return readFile(fd.get(), path, maximumBytes);
}

} // namespace platform
