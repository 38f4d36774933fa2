#pragma once

#include <sys/stat.h>

#include <cstddef>
#include <filesystem>

/// A new folder, in memory where that is possible, removed with everything in it.
class TestFolder {
public:
    TestFolder();
    ~TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    /// More bytes than a test writes into one file.
    static constexpr std::size_t enough = 1U << 20;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

    /// The permission bits of what lies at `path`, without following a link.
    [[nodiscard]] static mode_t modeOf(const std::filesystem::path& path);

private:
    std::filesystem::path path_;
};

/// Mounts a file system of a few pages at `folder`, in a mount namespace that ends with this
/// process. Answers whether that is permitted here. The process must have one thread only.
[[nodiscard]] bool mountSmallDisk(const std::filesystem::path& folder);

/// Makes the disk mounted at `folder` read-only.
[[nodiscard]] bool makeReadOnly(const std::filesystem::path& folder);
