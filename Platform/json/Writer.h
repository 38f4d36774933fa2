#pragma once

#include "Platform/json/JsonError.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace platform::json {

class Value;

/// Writes one JSON value, piece by piece, to the end of a string.
///
///     Writer(out).beginObject().key("minutes").integer(30).endObject();
///
/// Calls must follow JSON's grammar; that is the caller's duty and only asserted. Members come in
/// the order they are written. After an exception the string holds an unfinished text.
class Writer {
public:
    enum class Layout {
        compact, ///< no white space
        pretty,  ///< one member or element a line, indented by two spaces, ": " behind keys
    };
    enum class Slash {
        plain,   ///< /
        escaped, ///< \/
    };

    /// `out` must outlive the writer.
    explicit Writer(std::string& out, Layout layout = Layout::compact, Slash slash = Slash::plain);

    Writer& beginObject() { return begin('{'); }
    Writer& endObject() { return end('}'); }
    Writer& beginArray() { return begin('['); }
    Writer& endArray() { return end(']'); }
    /// The key of the next value. Throws as `string` does.
    Writer& key(std::string_view key);

    /// UTF-8, escaped only where JSON demands it. Throws `JsonError` when it is not valid UTF-8.
    Writer& string(std::string_view text);
    Writer& integer(std::int64_t value);
    /// The shortest decimal text without an exponent that reads back as the same double: 1780000000
    /// for 1780000000.0. Numbers beyond 64 bits and negative zero end in ".0", so that no reader
    /// takes them for integers. Throws `JsonError` for an infinity or a NaN.
    Writer& number(double value);
    Writer& boolean(bool value);
    Writer& null();
    /// A copy of a parsed value. An integer beyond the signed 64-bit ones becomes a double.
    Writer& value(const Value& value);

private:
    Writer& begin(char bracket);
    Writer& end(char bracket);
    Writer& literal(std::string_view text);
    void beforeValue();
    void nextLine();
    void appendQuoted(std::string_view text);

    std::string& out_;
    Layout layout_;
    Slash slash_;
    std::size_t depth_ = 0;
    /// The innermost open array or object has no member yet.
    bool isFirst_ = true;
    bool isAfterKey_ = false;
};

} // namespace platform::json
