#include "Quillmere/reports/ReportCSVExport.h"

#include "Platform/files/ExportFile.h"

namespace quillmere {

std::filesystem::path ReportCSVExport::write(const std::filesystem::path& temporary) const {
    return platform::writeExportFile(temporary / folderName, filename, csv,
                                     platform::ExportClearing::all);
}

} // namespace quillmere
