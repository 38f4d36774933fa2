#pragma once

#include "Platform/base/UniqueFd.h"
#include "Platform/json/Document.h"

#include <sys/stat.h>

#include <filesystem>
#include <optional>

namespace platform {

/// The file of a preference domain as it was last read.
class PreferencesFile {
public:
    enum class State {
        missing,
        readable,
        damaged,      ///< there, but not a JSON object
        inaccessible, ///< there perhaps, but reading fails
    };

    explicit PreferencesFile(std::filesystem::path path);

    /// Reads the file again if it is another one than before, or changed. Answers whether it was.
    bool refresh();

    [[nodiscard]] State state() const { return state_; }
    /// The domain's members; nothing unless the file is readable. Valid until the next refresh.
    [[nodiscard]] std::optional<json::Object> members() const;

    /// Replaces the file; a damaged one is kept beside it under another name. Throws `FileError`.
    void replace(std::string_view text);

private:
    void read();

    std::filesystem::path path_;
    State state_ = State::missing;
    std::optional<json::Document> document_;
    /// Kept open, so that its inode number cannot come to mean another file.
    UniqueFd fd_;
    struct stat status_ {};
};

} // namespace platform
