#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace platform {

/// One domain of small user preferences. Reads see what others last wrote. A value of another type
/// than asked for reads as absent; any whole or fractional number reads as a number. Keys and
/// strings are UTF-8. Confined to one thread.
class Preferences {
public:
    virtual ~Preferences() = default;

    [[nodiscard]] virtual std::optional<bool> boolean(std::string_view key) const = 0;
    [[nodiscard]] virtual std::optional<double> number(std::string_view key) const = 0;
    [[nodiscard]] virtual std::optional<std::string> string(std::string_view key) const = 0;
    /// Bytes stored with `setData`.
    [[nodiscard]] virtual std::optional<std::string> data(std::string_view key) const = 0;
    [[nodiscard]] virtual bool contains(std::string_view key) const = 0;
    [[nodiscard]] virtual bool empty() const = 0;

    /// Setters answer false when the value could not be stored durably, which includes numbers that
    /// are not finite; then the domain is as it was. Setting what is there already writes nothing.
    virtual bool setBoolean(std::string_view key, bool value) = 0;
    virtual bool setNumber(std::string_view key, double value) = 0;
    virtual bool setString(std::string_view key, std::string_view value) = 0;
    virtual bool setData(std::string_view key, std::string_view bytes) = 0;
    /// True also when there was nothing under `key`.
    virtual bool remove(std::string_view key) = 0;

    /// `listener` is called after each change of the domain, in place of an earlier one: by a
    /// setter of this object before it returns, and as the concrete type says when others made the
    /// change.
    void onChange(std::function<void()> listener) { listener_ = std::move(listener); }

protected:
    void notifyChanged() const {
        if (listener_) {
            listener_();
        }
    }

private:
    std::function<void()> listener_;
};

} // namespace platform
