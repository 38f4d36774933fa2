#include "Quillmere/settings/ArchiveFile.h"

#include "Platform/files/Files.h"
#include "Quillmere/settings/ArchiveImportReadError.h"

#include <string>

namespace quillmere::ArchiveFile {

namespace {

using platform::FileError;

std::string bytesOf(const std::filesystem::path& file) {
    try {
        return platform::readFile(file, TimeBankArchive::maximumFileBytes);
    } catch (const FileError& error) {
        if (error.kind() == FileError::Kind::tooLarge) {
            throw ArchiveImportReadError(ArchiveImportReadError::Reason::fileTooLarge);
        }
        throw;
    }
}

} // namespace

TimeBankArchive read(const std::filesystem::path& file) {
    return TimeBankArchive::decodeJSON(bytesOf(file));
}

} // namespace quillmere::ArchiveFile
