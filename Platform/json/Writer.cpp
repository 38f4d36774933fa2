#include "Platform/json/Writer.h"

#include "Platform/json/Value.h"

#include <simdjson.h>

#include <array>
#include <cassert>
#include <charconv>
#include <cmath>

namespace platform::json {

namespace {

enum class Treatment : unsigned char { plain, slash, escaped, notAscii };

constexpr std::array<Treatment, 256> treatments = [] {
    std::array<Treatment, 256> table{};
    for (std::size_t byte = 0; byte < table.size(); ++byte) {
        if (byte < 0x20 || byte == '"' || byte == '\\') {
            table[byte] = Treatment::escaped;
        } else if (byte >= 0x80) {
            table[byte] = Treatment::notAscii;
        }
    }
    table['/'] = Treatment::slash;
    return table;
}();

void appendEscape(std::string& out, char character) {
    constexpr std::string_view named = "\"\\/\b\f\n\r\t";
    constexpr std::string_view letters = "\"\\/bfnrt";
    constexpr std::string_view digits = "0123456789abcdef";
    out += '\\';
    if (const auto index = named.find(character); index != std::string_view::npos) {
        out += letters[index];
    } else {
        out += "u00";
        out += digits[static_cast<unsigned char>(character) >> 4];
        out += digits[static_cast<unsigned char>(character) & 0x0F];
    }
}

bool looksLikeInteger(double value) {
    constexpr double beyondIntegers = 0x1p63;
    return std::abs(value) < beyondIntegers && !(value == 0 && std::signbit(value));
}

} // namespace

Writer::Writer(std::string& out, Layout layout, Slash slash)
    : out_(out), layout_(layout), slash_(slash) {
}

Writer& Writer::key(std::string_view key) {
    assert(depth_ > 0 && !isAfterKey_);
    beforeValue();
    appendQuoted(key);
    out_ += layout_ == Layout::pretty ? ": " : ":";
    isAfterKey_ = true;
    return *this;
}

Writer& Writer::string(std::string_view text) {
    beforeValue();
    appendQuoted(text);
    return *this;
}

Writer& Writer::integer(std::int64_t value) {
    std::array<char, 20> digits;
    const auto result = std::to_chars(digits.begin(), digits.end(), value);
    return literal({digits.data(), result.ptr});
}

Writer& Writer::number(double value) {
    if (!std::isfinite(value)) {
        throw JsonError("an infinity or NaN cannot be written");
    }
    // The longest is the smallest subnormal number in its full 17 digits.
    std::array<char, 352> digits;
    const auto result =
        std::to_chars(digits.begin(), digits.end(), value, std::chars_format::fixed);
    literal({digits.data(), result.ptr});
    if (std::trunc(value) == value && !looksLikeInteger(value)) {
        out_ += ".0";
    }
    return *this;
}

Writer& Writer::boolean(bool value) {
    return literal(value ? "true" : "false");
}

Writer& Writer::null() {
    return literal("null");
}

Writer& Writer::value(const Value& value) {
    if (const auto object = value.object()) {
        beginObject();
        for (const Member& member : *object) {
            key(member.key).value(member.value);
        }
        return endObject();
    }
    if (const auto array = value.array()) {
        beginArray();
        for (const Value element : *array) {
            this->value(element);
        }
        return endArray();
    }
    if (const auto text = value.string()) {
        return string(*text);
    }
    if (const auto whole = value.integer()) {
        return integer(*whole);
    }
    if (const auto real = value.number()) {
        return number(*real);
    }
    const auto truth = value.boolean();
    return truth ? boolean(*truth) : null();
}

Writer& Writer::begin(char bracket) {
    beforeValue();
    out_ += bracket;
    ++depth_;
    isFirst_ = true;
    return *this;
}

Writer& Writer::end(char bracket) {
    assert(depth_ > 0 && !isAfterKey_);
    --depth_;
    if (!isFirst_) {
        nextLine();
    }
    isFirst_ = false;
    out_ += bracket;
    return *this;
}

Writer& Writer::literal(std::string_view text) {
    beforeValue();
    out_ += text;
    return *this;
}

void Writer::beforeValue() {
    if (isAfterKey_) {
        isAfterKey_ = false;
        return;
    }
    if (depth_ == 0) {
        return;
    }
    if (!isFirst_) {
        out_ += ',';
    }
    isFirst_ = false;
    nextLine();
}

void Writer::nextLine() {
    if (layout_ == Layout::pretty) {
        out_ += '\n';
        out_.append(2 * depth_, ' ');
    }
}

void Writer::appendQuoted(std::string_view text) {
    bool isAscii = true;
    std::size_t copied = 0;
    out_ += '"';
    for (std::size_t position = 0; position < text.size(); ++position) {
        const Treatment treatment = treatments[static_cast<unsigned char>(text[position])];
        if (treatment == Treatment::plain) {
            continue;
        }
        if (treatment == Treatment::notAscii) {
            isAscii = false;
        } else if (treatment == Treatment::escaped || slash_ == Slash::escaped) {
            out_.append(text, copied, position - copied);
            appendEscape(out_, text[position]);
            copied = position + 1;
        }
    }
    if (!isAscii && !simdjson::validate_utf8(text)) {
        throw JsonError("a text is not valid UTF-8");
    }
    out_.append(text, copied);
    out_ += '"';
}

} // namespace platform::json
