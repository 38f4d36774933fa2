#include "Platform/store/FileProbe.h"

#include "Platform/store/StoreError.h"

#include <sqlite3.h>

#include <array>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string>
#include <system_error>
#include <vector>

namespace platform::store {

namespace {

// Offsets of the database header; SQLite, "Database File Format", section 1.3.
constexpr char magic[] = "SQLite format 3"; // with its final zero
constexpr std::size_t headerSize = 100;
constexpr std::size_t pageSizeAt = 16;
constexpr std::size_t changeCounterAt = 24;
constexpr std::size_t pageCountAt = 28;
constexpr std::size_t userVersionAt = 60;
constexpr std::size_t applicationIdAt = 68;
constexpr std::size_t versionValidForAt = 92;

using Header = std::array<std::uint8_t, headerSize>;

std::uint32_t number(const Header& header, std::size_t at, std::size_t size) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < size; ++i) {
        value = value << 8U | header[at + i];
    }
    return value;
}

/// A file opened for reading through a VFS.
class ProbedFile {
public:
    ProbedFile(sqlite3_vfs& vfs, const std::filesystem::path& path)
        : name_(sqlite3_create_filename(path.c_str(), "", "", 0, nullptr)),
          memory_(static_cast<std::size_t>(vfs.szOsFile)) {
        const int flags = SQLITE_OPEN_READONLY | SQLITE_OPEN_MAIN_DB;
        if (vfs.xOpen(&vfs, name_.get(), file(), flags, nullptr) != SQLITE_OK) {
            close();
            throw StoreError(StoreFault::cannotOpen, "cannot open " + path.string());
        }
    }
    ~ProbedFile() { close(); }
    ProbedFile(const ProbedFile&) = delete;
    ProbedFile& operator=(const ProbedFile&) = delete;

    [[nodiscard]] std::int64_t size() {
        sqlite3_int64 size = 0;
        check(file()->pMethods->xFileSize(file(), &size));
        return size;
    }

    [[nodiscard]] Header header() {
        Header header{};
        check(file()->pMethods->xRead(file(), header.data(), headerSize, 0));
        return header;
    }

private:
    struct FreeName {
        void operator()(const char* name) const { sqlite3_free_filename(const_cast<char*>(name)); }
    };

    sqlite3_file* file() { return reinterpret_cast<sqlite3_file*>(memory_.data()); }

    void close() {
        if (file()->pMethods != nullptr) {
            file()->pMethods->xClose(file());
        }
    }

    static void check(int result) {
        if (result != SQLITE_OK) {
            throw StoreError(StoreFault::io, "cannot read the header of the store's file");
        }
    }

    std::unique_ptr<const char, FreeName> name_;
    std::vector<std::max_align_t> memory_;
};

std::int64_t sizeOf(std::filesystem::path file, const char* suffix) {
    std::error_code error;
    const auto size = std::filesystem::file_size(file += suffix, error);
    return error ? 0 : static_cast<std::int64_t>(size);
}

/// Throws when the file cannot hold the pages it counts. Pages still in the log may be missing.
void checkLength(const Header& header, std::int64_t fileSize, std::int64_t logSize) {
    const std::uint32_t field = number(header, pageSizeAt, 2);
    const std::int64_t pageSize = field == 1 ? 65536 : field;
    if (pageSize < 512 || (pageSize & (pageSize - 1)) != 0) {
        throw StoreError(StoreFault::damaged, "the file's page size is impossible");
    }
    const bool countIsValid =
        number(header, changeCounterAt, 4) == number(header, versionValidForAt, 4);
    const std::int64_t counted = countIsValid ? number(header, pageCountAt, 4) : 1;
    const std::int64_t missing = counted - fileSize / pageSize;
    if (missing > logSize / pageSize) {
        throw StoreError(StoreFault::damaged,
                         "the file is " + std::to_string(missing) + " pages short");
    }
}

} // namespace

FileProbe FileProbe::read(const std::filesystem::path& file, const char* vfsName) {
    std::error_code error;
    if (!std::filesystem::exists(file, error)) {
        return {};
    }
    sqlite3_vfs* vfs = sqlite3_vfs_find(vfsName);
    if (vfs == nullptr) {
        throw StoreError(StoreFault::misuse, "there is no such VFS");
    }
    ProbedFile probed(*vfs, file);
    const std::int64_t size = probed.size();
    if (size == 0) {
        return {};
    }
    if (size < static_cast<std::int64_t>(headerSize)) {
        throw StoreError(StoreFault::damaged, "the file is shorter than a header");
    }
    const Header header = probed.header();
    if (std::memcmp(header.data(), magic, sizeof magic) != 0) {
        throw StoreError(StoreFault::damaged, "the file is not a database");
    }
    const std::int64_t logSize = sizeOf(file, "-wal");
    if (sizeOf(file, "-journal") == 0) {
        checkLength(header, size, logSize);
    }
    return {false, static_cast<std::int32_t>(number(header, applicationIdAt, 4)),
            static_cast<int>(number(header, userVersionAt, 4)), logSize > 0};
}

} // namespace platform::store
