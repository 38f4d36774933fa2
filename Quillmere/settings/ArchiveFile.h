#pragma once

#include "QuillmereKit/archive/TimeBankArchive.h"

#include <filesystem>

namespace quillmere::ArchiveFile {

/// Reads an archive that the user chose, and validates it. Any thread. Throws
/// `ArchiveImportReadError` for a file of more than `TimeBankArchive::maximumFileBytes`,
/// `FileError` when it cannot be read, and what `TimeBankArchive::decodeJSON` throws.
[[nodiscard]] TimeBankArchive read(const std::filesystem::path& file);

} // namespace quillmere::ArchiveFile
