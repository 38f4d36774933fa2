#include "Platform/store/StoreOpening.h"

#include "Platform/files/Files.h"
#include "Platform/store/FileProbe.h"
#include "Platform/store/SchemaSetup.h"
#include "Platform/store/SqliteError.h"
#include "Platform/store/Store.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <string_view>
#include <thread>
#include <utility>

namespace platform::store {

namespace {

StoreFault faultOf(FileError::Kind kind) {
    switch (kind) {
    case FileError::Kind::noPermission:
        return StoreFault::readOnly;
    case FileError::Kind::diskFull:
        return StoreFault::diskFull;
    default:
        return StoreFault::cannotOpen;
    }
}

void createFolder(const std::filesystem::path& folder) try {
    if (!folder.empty()) {
        createPrivateFolder(folder);
    }
} catch (const FileError& error) {
    throw StoreError(faultOf(error.kind()), error.what());
}

/// SQLite would create the file readable for all.
void createFile(const std::filesystem::path& file) {
    const int fd = ::open(file.c_str(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, privateFileMode);
    if (fd >= 0) {
        ::close(fd);
    } else if (errno != EEXIST) {
        throw systemError(StoreFault::cannotOpen, "cannot create " + file.string(), errno);
    }
}

/// Changing the journal mode does not wait for locks by itself.
void useWriteAheadLog(Database& database, int busyTimeoutMilliseconds) {
    using namespace std::chrono_literals;
    const auto deadline =
        std::chrono::steady_clock::now() + std::chrono::milliseconds(busyTimeoutMilliseconds);
    for (;;) {
        try {
            Statement mode = database.prepare("PRAGMA journal_mode = WAL");
            mode.step();
            if (mode.text(0) != std::string_view("wal")) {
                throw StoreError(StoreFault::cannotOpen,
                                 "the file system does not allow a write-ahead log");
            }
            return;
        } catch (const StoreError& error) {
            if (error.fault() != StoreFault::locked ||
                std::chrono::steady_clock::now() >= deadline) {
                throw;
            }
        }
        std::this_thread::sleep_for(5ms);
    }
}

void checkProbe(const FileProbe& probe, const Schema& schema) {
    if (probe.isNew) {
        return;
    }
    if (probe.applicationId != schema.applicationId()) {
        throw StoreError(StoreFault::foreign, "the database belongs to another program");
    }
    if (probe.schemaVersion > schema.version()) {
        throw StoreError(StoreFault::newerSchema,
                         "the file has schema version " + std::to_string(probe.schemaVersion) +
                             ", this program knows " + std::to_string(schema.version()));
    }
}

void restrictAccess(const std::filesystem::path& file) {
    std::error_code ignored; // a file of another owner keeps what its owner chose
    std::filesystem::permissions(
        file, std::filesystem::perms::owner_read | std::filesystem::perms::owner_write, ignored);
}

} // namespace

std::filesystem::path resolveStoreFile(const std::filesystem::path& file) {
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(file, error);
    if (error || !std::filesystem::exists(status)) {
        return file;
    }
    if (!std::filesystem::is_regular_file(status)) {
        throw StoreError(StoreFault::cannotOpen, file.string() + " is not a file");
    }
    std::filesystem::path resolved = std::filesystem::canonical(file, error);
    return error ? file : resolved;
}

std::unique_ptr<Database> openStoreFile(const Schema& schema,
                                        const StoreConfiguration& configuration,
                                        std::shared_ptr<StoreHealth> health) {
    const std::filesystem::path& file = configuration.file;
    const FileProbe probe = FileProbe::read(file, configuration.vfs);
    checkProbe(probe, schema);
    createFolder(file.parent_path());
    createFile(file);
    auto database = std::make_unique<Database>(
        Database::Options{file, configuration.vfs, configuration.busyTimeoutMilliseconds},
        std::move(health));
    // Should the file be refused yet, a log stays as it was found, and none is left where none was.
    database->setCheckpointOnClose(!probe.hasLog);
    if (database->isReadOnly()) {
        throw StoreError(StoreFault::readOnly, file.string() + " may not be written");
    }
    database->configure();
    setUpSchema(*database, schema);
    useWriteAheadLog(*database, configuration.busyTimeoutMilliseconds);
    restrictAccess(file);
    database->setCheckpointOnClose(true);
    return database;
}

} // namespace platform::store
