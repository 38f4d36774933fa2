#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

/// What a build may use, as it was stamped when it was built.
class Entitlements {
public:
    virtual ~Entitlements() = default;
    /// The text under `key`; nothing when it is missing or not a text.
    [[nodiscard]] virtual std::optional<std::string> string(std::string_view key) const = 0;
    /// The texts under `key`; empty when it is missing or not a list of texts only.
    [[nodiscard]] virtual std::vector<std::string> strings(std::string_view key) const = 0;
};

/// Reads `entitlements.json`, anew at each call. A file that is missing or unreadable holds
/// nothing.
class FileEntitlements final : public Entitlements {
public:
    explicit FileEntitlements(std::filesystem::path file);
    /// The file of the running program: `../share/quillmere/entitlements.json` beside the folder of
    /// the executable when installed, else `entitlements.json` in the executable's own folder.
    [[nodiscard]] static std::filesystem::path ofRunningProgram();

    [[nodiscard]] std::optional<std::string> string(std::string_view key) const override;
    [[nodiscard]] std::vector<std::string> strings(std::string_view key) const override;

private:
    std::filesystem::path file_;
};

} // namespace platform
