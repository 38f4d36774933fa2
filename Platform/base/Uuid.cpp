#include "Platform/base/Uuid.h"

#include <sys/random.h>

#include <cerrno>
#include <span>
#include <system_error>

namespace platform {

namespace {

constexpr std::size_t textLength = 36;

constexpr bool isHyphenPosition(std::size_t position) {
    return position == 8 || position == 13 || position == 18 || position == 23;
}

void fillRandom(std::span<std::uint8_t> bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::getrandom(bytes.data(), bytes.size(), 0);
        if (count > 0) {
            bytes = bytes.subspan(static_cast<std::size_t>(count));
        } else if (errno != EINTR) {
            throw std::system_error(errno, std::generic_category(), "getrandom");
        }
    }
}

// A table, because the kind of digit is not to be foreseen and archives hold many.
constexpr std::array<std::int8_t, 256> hexadecimalValues = [] {
    constexpr std::string_view upper = "0123456789ABCDEF";
    constexpr std::string_view lower = "0123456789abcdef";
    std::array<std::int8_t, 256> values{};
    values.fill(-1);
    for (std::size_t value = 0; value < upper.size(); ++value) {
        values[static_cast<unsigned char>(upper[value])] = static_cast<std::int8_t>(value);
        values[static_cast<unsigned char>(lower[value])] = static_cast<std::int8_t>(value);
    }
    return values;
}();

int hexadecimalValue(char character) {
    return hexadecimalValues[static_cast<unsigned char>(character)];
}

} // namespace

Uuid Uuid::random() {
    Bytes bytes{};
    fillRandom(bytes);
    // RFC 9562, 5.4: version 4 in the high half of byte 6, variant 10 in the top bits of byte 8.
    bytes[6] = static_cast<std::uint8_t>((bytes[6] & 0x0F) | 0x40);
    bytes[8] = static_cast<std::uint8_t>((bytes[8] & 0x3F) | 0x80);
    return Uuid(bytes);
}

std::optional<Uuid> Uuid::parse(std::string_view text) {
    if (text.size() != textLength) {
        return std::nullopt;
    }
    Bytes bytes{};
    std::size_t position = 0;
    for (std::uint8_t& byte : bytes) {
        if (isHyphenPosition(position) && text[position++] != '-') {
            return std::nullopt;
        }
        const int high = hexadecimalValue(text[position++]);
        const int low = hexadecimalValue(text[position++]);
        if (high < 0 || low < 0) {
            return std::nullopt;
        }
        byte = static_cast<std::uint8_t>(high << 4 | low);
    }
    return Uuid(bytes);
}

std::string Uuid::text() const {
    static constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text(textLength, '-');
    std::size_t position = 0;
    for (const std::uint8_t byte : bytes_) {
        if (isHyphenPosition(position)) {
            ++position;
        }
        text[position++] = digits[byte >> 4];
        text[position++] = digits[byte & 0x0F];
    }
    return text;
}

} // namespace platform

std::size_t std::hash<platform::Uuid>::operator()(const platform::Uuid& uuid) const noexcept {
    // Identifiers come from outside too, so every byte has to count.
    const auto* bytes = reinterpret_cast<const char*>(uuid.bytes().data());
    return std::hash<std::string_view>{}({bytes, uuid.bytes().size()});
}
