#pragma once

#include "Platform/json/JsonError.h"
#include "Platform/json/Value.h"

#include <memory>
#include <string_view>

namespace platform::json {

/// How deep arrays and objects may nest.
inline constexpr std::size_t maximumDepth = 64;

/// A parsed and fully checked JSON text (RFC 8259). Holds copies, not the text it was parsed from.
/// May be read from several threads at once.
class Document {
public:
    Document(Document&&) noexcept;
    Document& operator=(Document&&) noexcept;
    ~Document();

    [[nodiscard]] Value root() const;

private:
    friend Document parse(std::string_view text);
    struct Storage;
    explicit Document(std::unique_ptr<Storage> storage);

    std::unique_ptr<Storage> storage_;
};

/// Parses a whole text holding exactly one value. Throws `JsonError` for anything that is not
/// strict JSON in valid UTF-8, and also for a byte order mark, a key that occurs twice in one
/// object, an escaped surrogate without its partner, a number beyond the doubles, and nesting
/// deeper than `maximumDepth`. A whole number beyond 64 bits is read as a double. Takes time linear
/// in the text but for sorting the keys of large objects.
[[nodiscard]] Document parse(std::string_view text);

} // namespace platform::json
