#include "Platform/entitlements/Entitlements.h"
#include "Platform/files/Files.h"
#include "Platform/json/Document.h"

#include <utility>

namespace platform {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t maximumFileBytes = 65536;
constexpr const char* fileName = "entitlements.json";

/// Calls `read` with the value under `key` and answers its result; `Result()` when there is none.
template <typename Result, typename Read>
Result withValue(const fs::path& file, std::string_view key, Read read) {
    try {
        const json::Document document = json::parse(readFile(file, maximumFileBytes));
        const auto members = document.root().object();
        const auto value = members ? members->find(key) : std::nullopt;
        return value ? read(*value) : Result();
    } catch (const FileError&) {
        return Result();
    } catch (const json::JsonError&) {
        return Result();
    }
}

std::optional<std::string> textOf(const json::Value& value) {
    return value.string() ? std::optional<std::string>(*value.string()) : std::nullopt;
}

std::vector<std::string> textsOf(const json::Value& value) {
    std::vector<std::string> texts;
    const auto elements = value.array();
    if (!elements) {
        return {};
    }
    for (const json::Value element : *elements) {
        auto text = textOf(element);
        if (!text) {
            return {};
        }
        texts.push_back(*std::move(text));
    }
    return texts;
}

} // namespace

FileEntitlements::FileEntitlements(fs::path file) : file_(std::move(file)) {
}

fs::path FileEntitlements::ofRunningProgram() {
    std::error_code error;
    const fs::path folder = fs::read_symlink("/proc/self/exe", error).parent_path();
    const fs::path installed = folder.parent_path() / "share" / "quillmere" / fileName;
    return fs::exists(installed, error) ? installed : folder / fileName;
}

std::optional<std::string> FileEntitlements::string(std::string_view key) const {
    return withValue<std::optional<std::string>>(file_, key, textOf);
}

std::vector<std::string> FileEntitlements::strings(std::string_view key) const {
    return withValue<std::vector<std::string>>(file_, key, textsOf);
}

} // namespace platform
