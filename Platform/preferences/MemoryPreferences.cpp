#include "Platform/preferences/MemoryPreferences.h"

#include <cmath>
#include <utility>

namespace platform {

template <typename Type>
std::optional<Type> MemoryPreferences::get(std::string_view key) const {
    const auto found = values_.find(key);
    const Type* value = found != values_.end() ? std::get_if<Type>(&found->second) : nullptr;
    return value != nullptr ? std::optional(*value) : std::nullopt;
}

bool MemoryPreferences::set(std::string_view key, Stored value) {
    const auto found = values_.find(key);
    if (found != values_.end() && found->second == value) {
        return true;
    }
    if (isFailing_) {
        return false;
    }
    values_.insert_or_assign(std::string(key), std::move(value));
    notifyChanged();
    return true;
}

std::optional<bool> MemoryPreferences::boolean(std::string_view key) const {
    return get<bool>(key);
}

std::optional<double> MemoryPreferences::number(std::string_view key) const {
    return get<double>(key);
}

std::optional<std::string> MemoryPreferences::string(std::string_view key) const {
    return get<std::string>(key);
}

std::optional<std::string> MemoryPreferences::data(std::string_view key) const {
    auto found = get<Data>(key);
    return found ? std::optional(std::move(found->bytes)) : std::nullopt;
}

bool MemoryPreferences::contains(std::string_view key) const {
    return values_.contains(key);
}

bool MemoryPreferences::setBoolean(std::string_view key, bool value) {
    return set(key, value);
}

bool MemoryPreferences::setNumber(std::string_view key, double value) {
    return std::isfinite(value) && set(key, value);
}

bool MemoryPreferences::setString(std::string_view key, std::string_view value) {
    return set(key, std::string(value));
}

bool MemoryPreferences::setData(std::string_view key, std::string_view bytes) {
    return set(key, Data{std::string(bytes)});
}

bool MemoryPreferences::remove(std::string_view key) {
    const auto found = values_.find(key);
    if (found == values_.end()) {
        return true;
    }
    if (isFailing_) {
        return false;
    }
    values_.erase(found);
    notifyChanged();
    return true;
}

} // namespace platform
