#pragma once

#include <cstddef>
#include <functional>

namespace quillmere {

/// Is told now and then how much of long work on an archive is done: `done` of `total` steps, never
/// less than the time before, and all of them at the end. Called on the thread that does the work;
/// may be empty. What it throws ends the work as any failure does.
using ArchiveProgress = std::function<void(std::size_t done, std::size_t total)>;

} // namespace quillmere
