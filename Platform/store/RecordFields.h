#pragma once

#include "Platform/base/Instant.h"
#include "Platform/base/Uuid.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

namespace platform::store {

/// One stored field: its column name, frozen once released, and the member that holds it.
/// Members may be `std::int64_t`, `bool`, `std::string`, `Uuid`, `Instant` and
/// `std::optional<Instant>`.
template <class Values, class T>
struct Field {
    std::string_view column;
    T Values::*member;
};

template <class Values, class T>
Field(std::string_view, T Values::*) -> Field<Values, T>;

/// Describes a record type's fields to the store. Specialise with
///
///     static constexpr std::string_view table = "reminder";
///     static constexpr auto fields = std::tuple{Field{"id", &ReminderValues::id}, …};
///
/// A type whose records differ in one field names its column: `uniqueColumn = "title"`. Its values
/// are compared byte by byte.
///
/// The column named `id` (a `Uuid`) is required: deletions leave it behind in their tombstone. The
/// names `row_key` and `revision`, and tables beginning with `store_` or `sqlite_`, are taken.
template <class Values>
struct RecordFields;

template <class Values>
inline constexpr std::size_t fieldCount =
    std::tuple_size_v<std::remove_cvref_t<decltype(RecordFields<Values>::fields)>>;

/// Position of a member in `RecordFields<Values>::fields`.
template <class Values, auto Member>
consteval std::size_t fieldIndex() {
    return []<std::size_t... I>(std::index_sequence<I...>) {
        std::size_t found = sizeof...(I);
        const auto match = [&]<std::size_t N>(std::integral_constant<std::size_t, N>) {
            constexpr auto member = std::get<N>(RecordFields<Values>::fields).member;
            if constexpr (std::is_same_v<decltype(member), std::add_const_t<decltype(Member)>>) {
                if (member == Member) {
                    found = N;
                }
            }
        };
        (match(std::integral_constant<std::size_t, I>{}), ...);
        if (found == sizeof...(I)) {
            throw "the member is not among the fields";
        }
        return found;
    }
    (std::make_index_sequence<fieldCount<Values>>{});
}

template <class>
struct MemberPointer;

template <class V, class T>
struct MemberPointer<T V::*> {
    using Type = T;
};

/// The type of the member that a member pointer points to.
template <auto Member>
using FieldType = typename MemberPointer<std::remove_const_t<decltype(Member)>>::Type;

/// Whether two field values are stored alike. Instants are compared bit for bit: NaN is the same as
/// itself, and zero differs from negative zero.
template <class T>
[[nodiscard]] bool sameValue(const T& a, const T& b) {
    if constexpr (std::is_same_v<T, Instant>) {
        return std::bit_cast<std::uint64_t>(a.secondsSince1970) ==
               std::bit_cast<std::uint64_t>(b.secondsSince1970);
    } else if constexpr (std::is_same_v<T, std::optional<Instant>>) {
        return a.has_value() == b.has_value() && (!a || sameValue(*a, *b));
    } else {
        return a == b;
    }
}

} // namespace platform::store
