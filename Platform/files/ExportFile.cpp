#include "Platform/files/ExportFile.h"

#include "Platform/files/Files.h"
#include "Platform/files/UserFolders.h"

#include <sys/stat.h>

#include <vector>

namespace platform {

namespace {

namespace fs = std::filesystem;

void check(const std::error_code& error, const std::string& action, const fs::path& path) {
    if (error) {
        throw FileError::ofErrno(error.value(), action, path);
    }
}

std::vector<fs::path> entriesOf(const fs::path& folder) {
    std::vector<fs::path> entries;
    std::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        entries.push_back(entry->path());
    }
    check(error, "list folder", folder);
    return entries;
}

void clear(const fs::path& folder, ExportClearing clearing) {
    for (const fs::path& entry : entriesOf(folder)) {
        const bool isHidden = entry.filename().native().starts_with('.');
        std::error_code error;
        if (clearing == ExportClearing::all || !isHidden) {
            fs::remove_all(entry, error);
        }
        if (clearing == ExportClearing::all) {
            check(error, "remove", entry);
        }
    }
}

} // namespace

fs::path writeExportFile(const fs::path& folder, const std::string& filename,
                         std::string_view bytes, ExportClearing clearing) {
    createPrivateFolder(folder.parent_path());
    claimPrivateFolder(folder);
    clear(folder, clearing);
    fs::path file = folder / filename;
    writeFileAtomically(file, bytes, privateFileMode);
    return file;
}

void saveForUser(const fs::path& target, std::string_view bytes) {
    std::error_code error;
    const fs::path file = fs::weakly_canonical(target, error);
    check(error, "find", target);
    struct stat status {};
    const bool exists = ::stat(file.c_str(), &status) == 0;
    writeFileAtomically(file, bytes, exists ? status.st_mode & 07777 : privateFileMode);
}

} // namespace platform
