#pragma once

#include <QtCore/QString>

#include <filesystem>
#include <string_view>

namespace quillmere {

/// The folder that exports are written below, as `UserFolders::temporary` takes its name.
inline constexpr std::string_view temporaryFolderName = "quillmere";

/// A file that an export has written into the temporary folder, to be handed to the user.
struct ExportedFile {
    std::filesystem::path path;
    /// What the user ought to know of it before they rely on it; empty when there is nothing.
    QString remarkTitle;
    QString remark;
};

} // namespace quillmere
