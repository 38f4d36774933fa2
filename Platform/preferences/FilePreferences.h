#pragma once

#include "Platform/files/FolderWatch.h"
#include "Platform/json/Writer.h"
#include "Platform/preferences/Preferences.h"
#include "Platform/preferences/PreferencesFile.h"

#include <filesystem>
#include <functional>
#include <memory>

namespace platform {

/// A preference domain in the file `preferences.json` of a folder of its own: one JSON object with
/// a member for each key. Booleans, numbers and strings are themselves; binary is an object whose
/// only member `data` holds base64. Values of other shapes are left as they are.
///
/// Any number of objects and processes may use one domain at once. Reading creates nothing; the
/// first setter creates the folder (0700), the file (0600) and the lock that makes setters take
/// turns. A file that is not a JSON object reads as empty, and the first setter puts it aside under
/// a name beginning with "damaged-". A file that cannot be read at all is never replaced.
class FilePreferences final : public Preferences {
public:
    explicit FilePreferences(std::filesystem::path folder);

    [[nodiscard]] std::optional<bool> boolean(std::string_view key) const override;
    [[nodiscard]] std::optional<double> number(std::string_view key) const override;
    [[nodiscard]] std::optional<std::string> string(std::string_view key) const override;
    [[nodiscard]] std::optional<std::string> data(std::string_view key) const override;
    [[nodiscard]] bool contains(std::string_view key) const override;
    [[nodiscard]] bool empty() const override;

    bool setBoolean(std::string_view key, bool value) override;
    bool setNumber(std::string_view key, double value) override;
    bool setString(std::string_view key, std::string_view value) override;
    bool setData(std::string_view key, std::string_view bytes) override;
    bool remove(std::string_view key) override;

    /// A descriptor that is readable (`POLLIN`) when others may have changed the domain; call
    /// `processChanges` then. Begins to watch at the first call. -1 when the system has no more
    /// watches to give; reads still see others' changes then.
    [[nodiscard]] int watchFd();
    /// Calls the listener if others have changed the domain since it was last told of a change.
    void processChanges();

private:
    using WriteValue = std::function<void(json::Writer&)>;

    [[nodiscard]] std::optional<json::Value> find(std::string_view key) const;
    void refresh() const;
    bool change(std::string_view key, const WriteValue& writeValue);
    [[nodiscard]] std::string changedText(std::string_view key, const WriteValue& writeValue) const;

    std::filesystem::path folder_;
    mutable PreferencesFile file_;
    /// A read has met a change by others that the listener has not been told of.
    mutable bool isUntold_ = false;
    std::unique_ptr<FolderWatch> watch_;
};

} // namespace platform
