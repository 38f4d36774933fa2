#pragma once

#include <filesystem>

namespace quillmere {

/// The folders a record store may lie in. They need not exist.
struct StoreLocations {
    /// The application's own data folder.
    std::filesystem::path defaultFolder;
    /// The folder shared by the programs of the application group.
    std::filesystem::path sharedContainer;
};

} // namespace quillmere
