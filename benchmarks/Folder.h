#pragma once

#include <stdlib.h>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>

namespace quillmere::benchmarks {

/// A new folder on the disk that the user's temporary files are on, removed with everything in it.
/// Writing there costs what it costs the program; a folder in memory would hide that.
class Folder {
public:
    Folder() {
        std::string name = std::filesystem::temp_directory_path() / "benchmark-XXXXXX";
        if (::mkdtemp(name.data()) == nullptr) {
            throw std::runtime_error("mkdtemp");
        }
        path_ = name;
    }
    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }
    [[nodiscard]] std::filesystem::path operator/(const char* name) const { return path_ / name; }

private:
    std::filesystem::path path_;
};

} // namespace quillmere::benchmarks
