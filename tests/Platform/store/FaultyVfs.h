#pragma once

namespace platform::store::test {

/// An SQLite VFS over the system's that fails one chosen operation, or all from it on. Registered
/// under `name` on first use. A write that fails has written its first half.
namespace faultyVfs {

inline constexpr const char* name = "faulty";

enum class Fault {
    ioError,  ///< any operation may fail
    diskFull, ///< those that need space
    readOnly, ///< those that write, as when the file system was mounted anew for reading
};

void install();

/// Counts operations from now on and fails the one with this number; 0 fails none.
void arm(Fault fault, int failing, bool andAllLater = false);

/// Stops failing and answers how many operations there were.
int disarm();

} // namespace faultyVfs

} // namespace platform::store::test
