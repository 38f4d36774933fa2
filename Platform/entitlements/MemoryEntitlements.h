#pragma once

#include "Platform/entitlements/Entitlements.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace platform {

/// Entitlements that are given rather than read, for tests and simulations.
class MemoryEntitlements final : public Entitlements {
public:
    void setString(const std::string& key, std::string value) { texts_[key] = std::move(value); }
    void setStrings(const std::string& key, std::vector<std::string> values) {
        lists_[key] = std::move(values);
    }

    [[nodiscard]] std::optional<std::string> string(std::string_view key) const override {
        const auto found = texts_.find(key);
        return found != texts_.end() ? std::optional(found->second) : std::nullopt;
    }
    [[nodiscard]] std::vector<std::string> strings(std::string_view key) const override {
        const auto found = lists_.find(key);
        return found != lists_.end() ? found->second : std::vector<std::string>();
    }

private:
    std::map<std::string, std::string, std::less<>> texts_;
    std::map<std::string, std::vector<std::string>, std::less<>> lists_;
};

} // namespace platform
