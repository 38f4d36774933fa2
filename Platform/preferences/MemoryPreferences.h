#pragma once

#include "Platform/preferences/Preferences.h"

#include <functional>
#include <map>
#include <string>
#include <variant>

namespace platform {

/// A preference domain that lives as long as the object, for tests and simulations.
class MemoryPreferences final : public Preferences {
public:
    [[nodiscard]] std::optional<bool> boolean(std::string_view key) const override;
    [[nodiscard]] std::optional<double> number(std::string_view key) const override;
    [[nodiscard]] std::optional<std::string> string(std::string_view key) const override;
    [[nodiscard]] std::optional<std::string> data(std::string_view key) const override;
    [[nodiscard]] bool contains(std::string_view key) const override;
    [[nodiscard]] bool empty() const override { return values_.empty(); }

    bool setBoolean(std::string_view key, bool value) override;
    bool setNumber(std::string_view key, double value) override;
    bool setString(std::string_view key, std::string_view value) override;
    bool setData(std::string_view key, std::string_view bytes) override;
    bool remove(std::string_view key) override;

    /// Makes every setter that would change something fail, as on a full disk.
    void setFailing(bool isFailing) { isFailing_ = isFailing; }

private:
    struct Data {
        std::string bytes;
        friend bool operator==(const Data&, const Data&) = default;
    };
    using Stored = std::variant<bool, double, std::string, Data>;

    template <typename Type>
    [[nodiscard]] std::optional<Type> get(std::string_view key) const;
    bool set(std::string_view key, Stored value);

    std::map<std::string, Stored, std::less<>> values_;
    bool isFailing_ = false;
};

} // namespace platform
