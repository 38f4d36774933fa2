#include "QuillmereKit/archive/TimeBankArchiveExport.h"

#include "Platform/files/ExportFile.h"

#include <array>
#include <cstdio>

namespace quillmere {

TimeBankArchiveExport TimeBankArchiveExport::ofStore(platform::store::Context& context) {
    TimeBankArchive archive = TimeBankArchive::ofStore(context, context.clock().now());
    return {std::move(archive), filenameAt(context.clock().now(), context.calendar())};
}

std::string TimeBankArchiveExport::filenameAt(platform::Instant instant,
                                              const platform::Calendar& calendar) {
    constexpr std::int64_t secondsADay = 86'400;
    const platform::CivilDate date = calendar.civilDate(instant);
    const auto time = static_cast<int>(calendar.civilSeconds(instant) -
                                       platform::daysSince1970(date) * secondsADay);
    std::array<char, 64> name{};
    std::snprintf(name.data(), name.size(), "Quillmere-Data-%04d-%02d-%02d-%02d%02d%02d.json",
                  date.year, date.month, date.day, time / 3600, time / 60 % 60, time % 60);
    return name.data();
}

TimeBankArchiveExport::File
TimeBankArchiveExport::write(const std::filesystem::path& temporaryFolder) const {
    const std::string bytes = archive.encodedJSON();
    return {platform::writeExportFile(temporaryFolder / folderName, filename, bytes,
                                      platform::ExportClearing::visible),
            bytes.size(), archive.importObstacle(bytes.size())};
}

} // namespace quillmere
