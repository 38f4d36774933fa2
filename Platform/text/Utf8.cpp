#include "Platform/text/Utf8.h"

#include <cstddef>

namespace platform {
namespace {

constexpr std::string_view replacement = "\xEF\xBF\xBD";

struct Sequence {
    std::size_t length; ///< bytes that belong together, at least 1
    bool isValid;
};

/// What may follow a lead byte (Unicode Standard, table 3-7).
struct LeadByte {
    std::size_t following;
    unsigned char leastSecond;
    unsigned char greatestSecond;
};

LeadByte leadByte(unsigned char byte) {
    if (byte >= 0xC2 && byte <= 0xDF)
        return {1, 0x80, 0xBF};
    if (byte >= 0xE0 && byte <= 0xEF)
        return {2, static_cast<unsigned char>(byte == 0xE0 ? 0xA0 : 0x80),
                static_cast<unsigned char>(byte == 0xED ? 0x9F : 0xBF)};
    if (byte >= 0xF0 && byte <= 0xF4)
        return {3, static_cast<unsigned char>(byte == 0xF0 ? 0x90 : 0x80),
                static_cast<unsigned char>(byte == 0xF4 ? 0x8F : 0xBF)};
    return {0, 0, 0};
}

/// The sequence that the bytes, which are not empty, begin with.
Sequence firstSequence(std::string_view bytes) {
    const auto first = static_cast<unsigned char>(bytes.front());
    if (first < 0x80)
        return {1, true};
    const auto lead = leadByte(first);
    for (std::size_t i = 1; i <= lead.following; ++i) {
        const auto byte = i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0U;
        if (byte < (i == 1 ? lead.leastSecond : 0x80U) ||
            byte > (i == 1 ? lead.greatestSecond : 0xBFU))
            return {i, false};
    }
    return {lead.following + 1, lead.following > 0};
}

} // namespace

bool isUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const auto sequence = firstSequence(bytes);
        if (!sequence.isValid)
            return false;
        bytes.remove_prefix(sequence.length);
    }
    return true;
}

std::string repairedUtf8(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    while (!bytes.empty()) {
        const auto sequence = firstSequence(bytes);
        text += sequence.isValid ? bytes.substr(0, sequence.length) : replacement;
        bytes.remove_prefix(sequence.length);
    }
    return text;
}

} // namespace platform
