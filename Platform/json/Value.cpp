#include "Platform/json/Value.h"

#include "Platform/json/SimdjsonAccess.h"

namespace platform::json {

namespace {

namespace dom = simdjson::dom;

dom::element element(Position position) {
    return handleAt<dom::element>(position);
}

template <typename Result>
std::optional<Result> read(Position position) {
    Result value{};
    return element(position).get(value) == simdjson::SUCCESS ? std::optional(value) : std::nullopt;
}

template <typename Iterator>
Position next(Position position) {
    auto iterator = handleAt<Iterator>(position);
    ++iterator;
    return positionOf(iterator);
}

} // namespace

Kind Value::kind() const {
    switch (element(position_).type()) {
    case dom::element_type::BOOL:
        return Kind::boolean;
    case dom::element_type::INT64:
    case dom::element_type::UINT64:
    case dom::element_type::DOUBLE:
        return Kind::number;
    case dom::element_type::STRING:
        return Kind::string;
    case dom::element_type::ARRAY:
        return Kind::array;
    case dom::element_type::OBJECT:
        return Kind::object;
    default:
        return Kind::null;
    }
}

std::optional<bool> Value::boolean() const {
    return read<bool>(position_);
}

std::optional<std::int64_t> Value::integer() const {
    return read<std::int64_t>(position_);
}

std::optional<double> Value::number() const {
    return read<double>(position_);
}

std::optional<std::string_view> Value::string() const {
    return read<std::string_view>(position_);
}

std::optional<Array> Value::array() const {
    return element(position_).is_array() ? std::optional(Array(position_)) : std::nullopt;
}

std::optional<Object> Value::object() const {
    return element(position_).is_object() ? std::optional(Object(position_)) : std::nullopt;
}

Array::Iterator& Array::Iterator::operator++() {
    position_ = next<dom::array::iterator>(position_);
    return *this;
}

Array::Iterator Array::begin() const {
    return Iterator(positionOf(handleAt<dom::array>(position_).begin()));
}

Array::Iterator Array::end() const {
    return Iterator(positionOf(handleAt<dom::array>(position_).end()));
}

std::size_t Array::size() const {
    std::size_t count = 0;
    for (auto iterator = begin(); iterator != end(); ++iterator) {
        ++count;
    }
    return count;
}

Member Object::Iterator::operator*() const {
    const auto iterator = handleAt<dom::object::iterator>(position_);
    return {iterator.key(), Value(positionOf(iterator.value()))};
}

Object::Iterator& Object::Iterator::operator++() {
    position_ = next<dom::object::iterator>(position_);
    return *this;
}

Object::Iterator Object::begin() const {
    return Iterator(positionOf(handleAt<dom::object>(position_).begin()));
}

Object::Iterator Object::end() const {
    return Iterator(positionOf(handleAt<dom::object>(position_).end()));
}

std::optional<Value> Object::find(std::string_view key) const {
    dom::element found;
    if (handleAt<dom::object>(position_).at_key(key).get(found) != simdjson::SUCCESS) {
        return std::nullopt;
    }
    return Value(positionOf(found));
}

} // namespace platform::json
