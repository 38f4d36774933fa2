#pragma once

#include "Platform/base/Instant.h"
#include "Platform/base/Uuid.h"

#include <cmath>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <type_traits>
#include <variant>

namespace platform::store {

enum class Comparison { equal, notEqual, less, lessOrEqual, greater, greaterOrEqual };

/// A value of any type a field may have.
using FieldValue =
    std::variant<std::int64_t, bool, std::string, Uuid, Instant, std::optional<Instant>>;

/// One condition of a filter: the field at `field` of the record type compared with `value`.
struct Condition {
    std::size_t field;
    Comparison comparison;
    FieldValue value;
};

/// Whether a condition holds in memory.
template <class T>
[[nodiscard]] bool holds(const T& field, Comparison comparison, const T& value) {
    switch (comparison) {
    case Comparison::equal:
        return field == value;
    case Comparison::notEqual:
        return field != value;
    case Comparison::less:
        return field < value;
    case Comparison::lessOrEqual:
        return field <= value;
    case Comparison::greater:
        return field > value;
    case Comparison::greaterOrEqual:
        return field >= value;
    }
    return false;
}

/// A total order of field values for sorting, instants that are not numbers last.
template <class T>
[[nodiscard]] std::weak_ordering ordering(const T& a, const T& b) {
    if constexpr (std::is_same_v<T, Instant>) {
        const bool aIsNumber = !std::isnan(a.secondsSince1970);
        const bool bIsNumber = !std::isnan(b.secondsSince1970);
        return aIsNumber && bIsNumber ? std::weak_order(a.secondsSince1970, b.secondsSince1970)
                                      : bIsNumber <=> aIsNumber;
    } else if constexpr (std::is_same_v<T, std::optional<Instant>>) {
        return a && b ? ordering(*a, *b) : a.has_value() <=> b.has_value();
    } else {
        return a <=> b;
    }
}

} // namespace platform::store
