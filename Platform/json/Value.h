#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace platform::json {

class Array;
class Object;

enum class Kind { null, boolean, number, string, array, object };

/// A place in a parsed document. Valid, as are the texts it gives, as long as its `Document` lives.
struct Position {
    const void* document = nullptr;
    std::size_t index = 0;

    friend bool operator==(const Position&, const Position&) = default;
};

/// One value of a parsed document, read only. Each reader gives nothing for another kind of value.
class Value {
public:
    explicit Value(Position position) : position_(position) {}

    [[nodiscard]] Kind kind() const;
    [[nodiscard]] bool isNull() const { return kind() == Kind::null; }
    [[nodiscard]] std::optional<bool> boolean() const;
    /// A number written without fraction and exponent that fits 64 bits.
    [[nodiscard]] std::optional<std::int64_t> integer() const;
    /// Any number, whole ones included, as the nearest double.
    [[nodiscard]] std::optional<double> number() const;
    /// Valid UTF-8; may hold NUL characters.
    [[nodiscard]] std::optional<std::string_view> string() const;
    [[nodiscard]] std::optional<Array> array() const;
    [[nodiscard]] std::optional<Object> object() const;

private:
    Position position_;
};

/// The elements of an array, in order.
class Array {
public:
    class Iterator {
    public:
        explicit Iterator(Position position) : position_(position) {}
        Value operator*() const { return Value(position_); }
        Iterator& operator++();
        friend bool operator==(const Iterator&, const Iterator&) = default;

    private:
        Position position_;
    };

    explicit Array(Position position) : position_(position) {}
    [[nodiscard]] Iterator begin() const;
    [[nodiscard]] Iterator end() const;
    /// Counts by walking the elements.
    [[nodiscard]] std::size_t size() const;

private:
    Position position_;
};

struct Member {
    std::string_view key;
    Value value;
};

/// The members of an object, in document order. No key occurs twice.
class Object {
public:
    class Iterator {
    public:
        explicit Iterator(Position position) : position_(position) {}
        Member operator*() const;
        Iterator& operator++();
        friend bool operator==(const Iterator&, const Iterator&) = default;

    private:
        Position position_;
    };

    explicit Object(Position position) : position_(position) {}
    [[nodiscard]] Iterator begin() const;
    [[nodiscard]] Iterator end() const;
    /// The value under `key`, found by looking at one member after the other.
    [[nodiscard]] std::optional<Value> find(std::string_view key) const;

private:
    Position position_;
};

} // namespace platform::json
