#pragma once

#include <array>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace platform {

/// A universally unique identifier (RFC 9562), held as its 16 bytes in text order. Comparing two is
/// the same as comparing their upper-case texts, because hexadecimal digits sort as their values.
class Uuid {
public:
    using Bytes = std::array<std::uint8_t, 16>;

    /// The nil UUID, all zero.
    constexpr Uuid() = default;
    constexpr explicit Uuid(const Bytes& bytes) : bytes_(bytes) {}

    /// A new random (version 4) UUID from the system's random source.
    [[nodiscard]] static Uuid random();

    /// Reads the 36-character hyphenated form, either case. Anything else gives nothing.
    [[nodiscard]] static std::optional<Uuid> parse(std::string_view text);

    /// The canonical form: 36 characters, hyphenated 8-4-4-4-12, upper-case.
    [[nodiscard]] std::string text() const;

    [[nodiscard]] constexpr const Bytes& bytes() const { return bytes_; }

    friend constexpr auto operator<=>(const Uuid&, const Uuid&) = default;

private:
    Bytes bytes_{};
};

} // namespace platform

template <>
struct std::hash<platform::Uuid> {
    std::size_t operator()(const platform::Uuid& uuid) const noexcept;
};
