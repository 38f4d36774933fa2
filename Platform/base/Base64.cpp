#include "Platform/base/Base64.h"

#include <array>
#include <cstdint>

namespace platform::base64 {

namespace {

constexpr std::string_view alphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::uint8_t notInAlphabet = 0xFF;

constexpr std::array<std::uint8_t, 256> sextets = [] {
    std::array<std::uint8_t, 256> table{};
    table.fill(notInAlphabet);
    for (std::size_t index = 0; index < alphabet.size(); ++index) {
        table[static_cast<std::uint8_t>(alphabet[index])] = static_cast<std::uint8_t>(index);
    }
    return table;
}();

std::size_t paddingOf(std::string_view text) {
    if (text.ends_with("==")) {
        return 2;
    }
    return text.ends_with('=') ? 1 : 0;
}

} // namespace

std::string encode(std::string_view bytes) {
    std::string text((bytes.size() + 2) / 3 * 4, '=');
    std::size_t position = 0;
    std::uint32_t pending = 0;
    unsigned pendingBits = 0;
    for (const char byte : bytes) {
        pending = pending << 8 | static_cast<std::uint8_t>(byte);
        for (pendingBits += 8; pendingBits >= 6;) {
            pendingBits -= 6;
            text[position++] = alphabet[pending >> pendingBits & 0x3F];
        }
    }
    if (pendingBits > 0) {
        text[position] = alphabet[pending << (6 - pendingBits) & 0x3F];
    }
    return text;
}

std::optional<std::string> decode(std::string_view text) {
    if (text.size() % 4 != 0) {
        return std::nullopt;
    }
    text.remove_suffix(paddingOf(text));
    std::string bytes;
    bytes.reserve(text.size() / 4 * 3 + 2);
    std::uint32_t pending = 0;
    unsigned pendingBits = 0;
    for (const char character : text) {
        const std::uint8_t sextet = sextets[static_cast<std::uint8_t>(character)];
        if (sextet == notInAlphabet) {
            return std::nullopt;
        }
        pending = pending << 6 | sextet;
        pendingBits += 6;
        if (pendingBits >= 8) {
            pendingBits -= 8;
            bytes += static_cast<char>(pending >> pendingBits & 0xFF);
        }
    }
    return bytes;
}

} // namespace platform::base64
