#pragma once

#include "Platform/files/FileError.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace platform {

/// What an export clears away before it writes.
enum class ExportClearing {
    visible, ///< every entry that is not hidden; what cannot be removed stays
    all,     ///< every entry; one that cannot be removed fails the export
};

/// Writes a file that is about to be handed to the user into `folder`, a subfolder of the user's
/// temporary folder, so that at most one export waits there. The folder is created with missing
/// parents, is only accepted as a folder (no link) of the user's own and is given mode 0700; then
/// it is cleared; then the file is written in one step and verified, with mode 0600. Answers its
/// path. Throws `FileError`. Any thread.
std::filesystem::path writeExportFile(const std::filesystem::path& folder,
                                      const std::string& filename, std::string_view bytes,
                                      ExportClearing clearing);

/// Puts a copy of `bytes` where the user said: replaces the file at `target`, or creates it, in one
/// step and verified, as `writeFileAtomically` does. A link is followed; a file that is there keeps
/// its mode, a new one is the user's alone. Throws `FileError`; what was there is then as it was.
void saveForUser(const std::filesystem::path& target, std::string_view bytes);

} // namespace platform
