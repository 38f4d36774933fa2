#pragma once

#include <cstddef>
#include <functional>

namespace quillmere {

/// Is told now and then how much of long work on an archive is done: `done` of `total` steps, never
/// less than the time before, and all of them at the end; the last step of a merge is its save.
/// Called on the thread that does the work; may be empty. What it throws comes out of the work.
using ArchiveProgress = std::function<void(std::size_t done, std::size_t total)>;

} // namespace quillmere
