#pragma once

#include "QuillmereKit/records/AppConstants.h"

#include <filesystem>

namespace quillmere {

/// The folders a record store may lie in. They need not exist.
struct StoreLocations {
    /// The application's own data folder.
    std::filesystem::path defaultFolder;
    /// The folder shared by the programs of the application group.
    std::filesystem::path sharedContainer;

    /// Where they are for a user whose programs keep their data in `folder`.
    [[nodiscard]] static StoreLocations within(const std::filesystem::path& folder) {
        return {folder / AppConstants::applicationIdentifier,
                folder / AppConstants::appGroupIdentifier};
    }
};

} // namespace quillmere
