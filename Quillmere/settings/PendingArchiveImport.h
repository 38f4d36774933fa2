#pragma once

#include "QuillmereKit/archive/TimeBankArchive.h"

#include <memory>

namespace quillmere {

/// An archive that was read and found valid, waiting for the user's word.
struct PendingArchiveImport {
    /// Shared, so that a worker can take it without a copy; never null.
    std::shared_ptr<const TimeBankArchive> archive;
};

} // namespace quillmere
