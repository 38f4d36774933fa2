#include "Platform/preferences/FilePreferences.h"

#include "Platform/base/Base64.h"
#include "Platform/files/Files.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <utility>

namespace platform {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view dataKey = "data";

/// Waits for its turn. The lock is given back when the descriptor is closed.
UniqueFd lockFolder(const fs::path& folder) {
    const fs::path path = folder / "preferences.lock";
    UniqueFd fd(::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, privateFileMode));
    if (!fd.isOpen()) {
        throw FileError::ofErrno(errno, "open", path);
    }
    while (::flock(fd.get(), LOCK_EX) != 0) {
        if (errno != EINTR) {
            throw FileError::ofErrno(errno, "lock", path);
        }
    }
    return fd;
}

/// The base64 text of a binary value.
std::optional<std::string_view> dataText(const json::Value& value) {
    const auto members = value.object();
    if (!members || members->begin() == members->end()) {
        return std::nullopt;
    }
    auto member = members->begin();
    const auto [key, content] = *member;
    const bool isOnly = ++member == members->end();
    return isOnly && key == dataKey ? content.string() : std::nullopt;
}

} // namespace

FilePreferences::FilePreferences(fs::path folder)
    : folder_(std::move(folder)), file_(folder_ / "preferences.json") {
}

std::optional<bool> FilePreferences::boolean(std::string_view key) const {
    const auto value = find(key);
    return value ? value->boolean() : std::nullopt;
}

std::optional<double> FilePreferences::number(std::string_view key) const {
    const auto value = find(key);
    return value ? value->number() : std::nullopt;
}

std::optional<std::string> FilePreferences::string(std::string_view key) const {
    const auto value = find(key);
    const auto text = value ? value->string() : std::nullopt;
    return text ? std::optional<std::string>(*text) : std::nullopt;
}

std::optional<std::string> FilePreferences::data(std::string_view key) const {
    const auto value = find(key);
    const auto text = value ? dataText(*value) : std::nullopt;
    return text ? base64::decode(*text) : std::nullopt;
}

bool FilePreferences::contains(std::string_view key) const {
    return find(key).has_value();
}

bool FilePreferences::empty() const {
    refresh();
    const auto members = file_.members();
    return !members || members->begin() == members->end();
}

bool FilePreferences::setBoolean(std::string_view key, bool value) {
    return boolean(key) == value || change(key, [&](json::Writer& out) { out.boolean(value); });
}

bool FilePreferences::setNumber(std::string_view key, double value) {
    return number(key) == value || change(key, [&](json::Writer& out) { out.number(value); });
}

bool FilePreferences::setString(std::string_view key, std::string_view value) {
    return string(key) == value || change(key, [&](json::Writer& out) { out.string(value); });
}

bool FilePreferences::setData(std::string_view key, std::string_view bytes) {
    return data(key) == bytes || change(key, [&](json::Writer& out) {
               out.beginObject().key(dataKey).string(base64::encode(bytes)).endObject();
           });
}

bool FilePreferences::remove(std::string_view key) {
    const bool isAbsent = !contains(key) && file_.state() != PreferencesFile::State::inaccessible;
    return isAbsent || change(key, nullptr);
}

int FilePreferences::watchFd() {
    if (!watch_) {
        try {
            watch_ = std::make_unique<FolderWatch>(folder_);
        } catch (const FileError&) {
            return -1;
        }
        refresh();
        isUntold_ = false;
    }
    return watch_->fd();
}

void FilePreferences::processChanges() {
    try {
        if (watch_) {
            (void)watch_->drain();
        }
    } catch (const FileError&) { // NOLINT(bugprone-empty-catch): reads need no watch
    }
    refresh();
    if (std::exchange(isUntold_, false)) {
        notifyChanged();
    }
}

std::optional<json::Value> FilePreferences::find(std::string_view key) const {
    refresh();
    const auto members = file_.members();
    return members ? members->find(key) : std::nullopt;
}

void FilePreferences::refresh() const {
    isUntold_ |= file_.refresh();
}

/// Writes the domain with another value under `key`, or with none when there is no `writeValue`.
bool FilePreferences::change(std::string_view key, const WriteValue& writeValue) {
    try {
        createPrivateFolder(folder_);
        const UniqueFd lock = lockFolder(folder_);
        refresh();
        if (file_.state() == PreferencesFile::State::inaccessible) {
            return false;
        }
        file_.replace(changedText(key, writeValue));
    } catch (const FileError&) {
        return false;
    } catch (const json::JsonError&) {
        return false;
    }
    refresh();
    isUntold_ = false;
    notifyChanged();
    return true;
}

std::string FilePreferences::changedText(std::string_view key, const WriteValue& writeValue) const {
    std::string text;
    json::Writer writer(text, json::Writer::Layout::pretty);
    writer.beginObject();
    if (const auto members = file_.members()) {
        for (const json::Member& member : *members) {
            if (member.key != key) {
                writer.key(member.key).value(member.value);
            }
        }
    }
    if (writeValue) {
        writer.key(key);
        writeValue(writer);
    }
    writer.endObject();
    return text += '\n';
}

} // namespace platform
