#pragma once

#include "Platform/store/RecordFields.h"

#include <string_view>
#include <tuple>
#include <type_traits>
#include <vector>

namespace platform::store {

/// How a field is stored. Declared in SQL as: integer and boolean `INTEGER NOT NULL` (a boolean is
/// 0 or 1), text `TEXT NOT NULL` (UTF-8), uuid `BLOB NOT NULL` (its 16 bytes), instant `ANY NOT
/// NULL`, optionalInstant `ANY` (absent is NULL). An instant is a REAL, bit for bit; one that is
/// not a number, which SQLite cannot hold, is an empty BLOB.
enum class ColumnType { integer, boolean, text, uuid, instant, optionalInstant };

struct Column {
    std::string_view name;
    ColumnType type;
};

/// A record type's table. Before the fields' columns every table has `row_key INTEGER PRIMARY KEY
/// AUTOINCREMENT` and `revision INTEGER NOT NULL`, indexed.
struct TableDescription {
    std::string_view name;
    std::vector<Column> columns;
    /// The column with an index of unique values; empty where there is none.
    std::string_view uniqueColumn = {};
};

template <class T>
[[nodiscard]] constexpr ColumnType columnType() {
    if constexpr (std::is_same_v<T, std::int64_t>) {
        return ColumnType::integer;
    } else if constexpr (std::is_same_v<T, bool>) {
        return ColumnType::boolean;
    } else if constexpr (std::is_same_v<T, std::string>) {
        return ColumnType::text;
    } else if constexpr (std::is_same_v<T, Uuid>) {
        return ColumnType::uuid;
    } else if constexpr (std::is_same_v<T, Instant>) {
        return ColumnType::instant;
    } else {
        static_assert(std::is_same_v<T, std::optional<Instant>>, "not a type of a field");
        return ColumnType::optionalInstant;
    }
}

template <class Values>
[[nodiscard]] TableDescription describe() {
    TableDescription table{RecordFields<Values>::table, {}};
    std::apply(
        [&]<class... T>(const Field<Values, T>&... field) {
            (table.columns.push_back({field.column, columnType<T>()}), ...);
        },
        RecordFields<Values>::fields);
    if constexpr (requires { RecordFields<Values>::uniqueColumn; }) {
        table.uniqueColumn = RecordFields<Values>::uniqueColumn;
    }
    return table;
}

} // namespace platform::store
