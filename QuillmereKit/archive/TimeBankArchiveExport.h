#pragma once

#include "Platform/calendar/Calendar.h"
#include "QuillmereKit/archive/TimeBankArchive.h"

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace quillmere {

/// An archive about to be handed to the user as a file.
struct TimeBankArchiveExport {
    static constexpr std::string_view contentType = "application/json";
    /// The subfolder of the user's temporary folder where exports wait, one at a time.
    static constexpr std::string_view folderName = "Quillmere Exports";

    /// The file that was written.
    struct File {
        std::filesystem::path path;
        std::size_t byteCount = 0;
        /// See `TimeBankArchive::importObstacle`.
        std::optional<std::string> importObstacle;
    };

    TimeBankArchive archive;
    std::string filename;

    /// Everything in the context's store, exported now and named after now by the context's clock
    /// and calendar. As `TimeBankArchive::ofStore`.
    [[nodiscard]] static TimeBankArchiveExport ofStore(platform::store::Context& context);

    /// "Quillmere-Data-2025-03-07-154210.json" for 7 March 2025, 15:42:10 in the calendar's zone;
    /// Gregorian, with ASCII digits, whatever the region.
    [[nodiscard]] static std::string filenameAt(platform::Instant instant,
                                                const platform::Calendar& calendar);

    /// Writes the file into the subfolder `folderName` of the user's temporary folder, where it
    /// replaces earlier exports: folder 0700, file 0600, in one step and verified. Any thread.
    /// Throws `FileError` or `TimeBankArchiveCodingError`.
    [[nodiscard]] File write(const std::filesystem::path& temporaryFolder) const;
};

} // namespace quillmere
