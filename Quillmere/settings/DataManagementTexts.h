#pragma once

#include "QuillmereKit/archive/TimeBankArchiveMergeResult.h"
#include "QuillmereKit/persistence/PersistenceMode.h"

#include <QtCore/QString>

#include <cstddef>
#include <optional>

namespace quillmere {

/// What the section "Data management" says, where it depends on the store or on an archive.
namespace DataManagementTexts {

[[nodiscard]] QString footer(PersistenceMode mode);

/// Asks for an import of so many records; a general question while there is none.
[[nodiscard]] QString importTitle(std::optional<std::size_t> records);
[[nodiscard]] QString importMessage(PersistenceMode mode);
[[nodiscard]] QString importedMessage(const TimeBankArchiveMergeResult& result);

[[nodiscard]] QString eraseMessage(PersistenceMode mode);

} // namespace DataManagementTexts

} // namespace quillmere
