#include "tests/Platform/store/FaultyVfs.h"

#include <sqlite3.h>

#include <cerrno>

namespace platform::store::test::faultyVfs {

namespace {

struct {
    Fault fault = Fault::ioError;
    int failing = 0;
    bool andAllLater = false;
    int count = 0;
} state;

/// What the next operation is to answer: success, or this fault.
int strike(int ioCode, int fullCode = SQLITE_OK) {
    if (state.fault != Fault::ioError && fullCode == SQLITE_OK) {
        return SQLITE_OK;
    }
    ++state.count;
    const bool fails = state.failing != 0 && (state.count == state.failing ||
                                              (state.andAllLater && state.count > state.failing));
    if (fails) {
        errno = state.fault == Fault::readOnly ? EROFS : EIO;
    }
    return !fails ? SQLITE_OK : state.fault == Fault::diskFull ? fullCode : ioCode;
}

/// Followed in memory by the file of the system's VFS.
struct File {
    sqlite3_file base;
    [[nodiscard]] sqlite3_file* real() { return reinterpret_cast<sqlite3_file*>(this + 1); }
};

sqlite3_file* real(sqlite3_file* file) {
    return reinterpret_cast<File*>(file)->real();
}

sqlite3_vfs* system() {
    return sqlite3_vfs_find("unix");
}

/// The operation of the real file, unless it is struck.
template <class Operation, class... Arguments>
int pass(int struck, sqlite3_file* file, Operation operation, Arguments... arguments) {
    return struck != SQLITE_OK ? struck
                               : (real(file)->pMethods->*operation)(real(file), arguments...);
}

int close(sqlite3_file* file) {
    return pass(SQLITE_OK, file, &sqlite3_io_methods::xClose);
}

int read(sqlite3_file* file, void* data, int size, sqlite3_int64 offset) {
    return pass(strike(SQLITE_IOERR_READ), file, &sqlite3_io_methods::xRead, data, size, offset);
}

int write(sqlite3_file* file, const void* data, int size, sqlite3_int64 offset) {
    const int struck = strike(SQLITE_IOERR_WRITE, SQLITE_FULL);
    const int written = struck == SQLITE_OK ? size : size / 2;
    const int result = pass(SQLITE_OK, file, &sqlite3_io_methods::xWrite, data, written, offset);
    return struck != SQLITE_OK ? struck : result;
}

int truncate(sqlite3_file* file, sqlite3_int64 size) {
    return pass(strike(SQLITE_IOERR_TRUNCATE), file, &sqlite3_io_methods::xTruncate, size);
}

int sync(sqlite3_file* file, int flags) {
    return pass(strike(SQLITE_IOERR_FSYNC, SQLITE_FULL), file, &sqlite3_io_methods::xSync, flags);
}

int fileSize(sqlite3_file* file, sqlite3_int64* size) {
    return pass(strike(SQLITE_IOERR_FSTAT), file, &sqlite3_io_methods::xFileSize, size);
}

int lock(sqlite3_file* file, int level) {
    return pass(strike(SQLITE_IOERR_LOCK), file, &sqlite3_io_methods::xLock, level);
}

int unlock(sqlite3_file* file, int level) {
    return pass(SQLITE_OK, file, &sqlite3_io_methods::xUnlock, level);
}

int checkReservedLock(sqlite3_file* file, int* result) {
    return pass(SQLITE_OK, file, &sqlite3_io_methods::xCheckReservedLock, result);
}

int fileControl(sqlite3_file* file, int operation, void* argument) {
    if (operation == SQLITE_FCNTL_LAST_ERRNO && state.fault == Fault::readOnly) {
        *static_cast<int*>(argument) = EROFS;
        return SQLITE_OK;
    }
    return pass(SQLITE_OK, file, &sqlite3_io_methods::xFileControl, operation, argument);
}

int sectorSize(sqlite3_file* file) {
    return pass(SQLITE_OK, file, &sqlite3_io_methods::xSectorSize);
}

int deviceCharacteristics(sqlite3_file* file) {
    return pass(SQLITE_OK, file, &sqlite3_io_methods::xDeviceCharacteristics);
}

int shmMap(sqlite3_file* file, int region, int size, int extend, void volatile** memory) {
    return pass(strike(SQLITE_IOERR_SHMMAP, SQLITE_IOERR_SHMSIZE), file,
                &sqlite3_io_methods::xShmMap, region, size, extend, memory);
}

int shmLock(sqlite3_file* file, int offset, int count, int flags) {
    const int struck = (flags & SQLITE_SHM_LOCK) != 0 ? strike(SQLITE_IOERR_SHMLOCK) : SQLITE_OK;
    return pass(struck, file, &sqlite3_io_methods::xShmLock, offset, count, flags);
}

void shmBarrier(sqlite3_file* file) {
    real(file)->pMethods->xShmBarrier(real(file));
}

int shmUnmap(sqlite3_file* file, int remove) {
    return pass(SQLITE_OK, file, &sqlite3_io_methods::xShmUnmap, remove);
}

constexpr sqlite3_io_methods methods{2,
                                     close,
                                     read,
                                     write,
                                     truncate,
                                     sync,
                                     fileSize,
                                     lock,
                                     unlock,
                                     checkReservedLock,
                                     fileControl,
                                     sectorSize,
                                     deviceCharacteristics,
                                     shmMap,
                                     shmLock,
                                     shmBarrier,
                                     shmUnmap,
                                     nullptr,
                                     nullptr};

int open(sqlite3_vfs* /*vfs*/, const char* path, sqlite3_file* file, int flags, int* outFlags) {
    file->pMethods = nullptr;
    int result = strike(SQLITE_CANTOPEN);
    if (result == SQLITE_OK) {
        result = system()->xOpen(system(), path, real(file), flags, outFlags);
    }
    if (result == SQLITE_OK) {
        file->pMethods = &methods;
    }
    return result;
}

} // namespace

void install() {
    static sqlite3_vfs faulty = [] {
        sqlite3_vfs vfs = *system();
        vfs.zName = name;
        vfs.szOsFile += static_cast<int>(sizeof(File));
        vfs.pNext = nullptr;
        vfs.xOpen = open;
        return vfs;
    }();
    sqlite3_vfs_register(&faulty, 0);
}

void arm(Fault fault, int failing, bool andAllLater) {
    state = {fault, failing, andAllLater, 0};
}

int disarm() {
    state.failing = 0;
    return state.count;
}

} // namespace platform::store::test::faultyVfs
