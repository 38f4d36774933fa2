#pragma once

namespace quillmere {

/// How the record store was opened, in falling order of what it can do.
enum class PersistenceMode {
    iCloud,      ///< on disk, exchanged privately with the user's other devices
    localOnly,   ///< on disk, this device only
    temporary,   ///< in memory, lost when the process ends
    unavailable, ///< no store is open
};

} // namespace quillmere
