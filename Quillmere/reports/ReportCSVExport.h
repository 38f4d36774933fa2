#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace quillmere {

/// A period's changes as a text for a spreadsheet, and the name of its file. A value of its own: it
/// can be written on any thread.
struct ReportCSVExport {
    /// The subfolder of the user's temporary folder that holds the latest export.
    static constexpr std::string_view folderName = "Quillmere Reports";

    std::string csv;
    std::string filename;

    /// Writes the file, readable for its owner only, in place of earlier exports below `temporary`,
    /// the user's temporary folder. Answers its path. Throws `platform::FileError`; nothing is
    /// handed over then.
    [[nodiscard]] std::filesystem::path write(const std::filesystem::path& temporary) const;
};

} // namespace quillmere
