#include "Platform/text/WhiteSpace.h"

#include <cstddef>

namespace platform {
namespace {

bool isWhiteSpaceAfterE280(unsigned char last) {
    return (last >= 0x80 && last <= 0x8A) || last == 0xA8 || last == 0xA9 || last == 0xAF;
}

/// Bytes of the white-space character that the text begins with; 0 when it begins with none.
std::size_t leadingWhiteSpace(std::string_view text) {
    const auto at = [text](std::size_t index) {
        return index < text.size() ? static_cast<unsigned char>(text[index]) : 0U;
    };
    const auto first = at(0);
    if (first < 0x80)
        return !text.empty() && (first == ' ' || (first >= '\t' && first <= '\r')) ? 1 : 0;
    if (first == 0xC2)
        return at(1) == 0x85 || at(1) == 0xA0 ? 2 : 0;
    const auto pair = first << 8 | at(1);
    const auto last = static_cast<unsigned char>(at(2));
    const bool isSpace = (pair == 0xE19A && last == 0x80) ||
                         (pair == 0xE280 && isWhiteSpaceAfterE280(last)) ||
                         (pair == 0xE281 && last == 0x9F) || (pair == 0xE380 && last == 0x80);
    return isSpace ? 3 : 0;
}

std::size_t trailingWhiteSpace(std::string_view text) {
    for (std::size_t length = 1; length <= 3 && length <= text.size(); ++length)
        if (leadingWhiteSpace(text.substr(text.size() - length)) == length)
            return length;
    return 0;
}

} // namespace

std::string_view trimmed(std::string_view text) {
    while (const auto length = leadingWhiteSpace(text))
        text.remove_prefix(length);
    while (const auto length = trailingWhiteSpace(text))
        text.remove_suffix(length);
    return text;
}

std::vector<std::string_view> splitAtWhiteSpace(std::string_view text) {
    std::vector<std::string_view> pieces;
    std::size_t start = 0;
    for (std::size_t i = 0; i <= text.size();) {
        const auto space = leadingWhiteSpace(text.substr(i));
        if ((space > 0 || i == text.size()) && i > start)
            pieces.push_back(text.substr(start, i - start));
        i += space > 0 ? space : 1;
        if (space > 0)
            start = i;
    }
    return pieces;
}

} // namespace platform
