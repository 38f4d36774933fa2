#include "Platform/store/FieldCodec.h"

#include "Platform/store/StoreError.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace platform::store {

namespace {

[[noreturn]] void failColumn() {
    throw StoreError(StoreFault::damaged, "a column holds a value that is not of its type");
}

} // namespace

void bindField(Statement& statement, int parameter, const std::int64_t& value) {
    statement.bindInteger(parameter, value);
}

void bindField(Statement& statement, int parameter, const bool& value) {
    statement.bindInteger(parameter, value ? 1 : 0);
}

void bindField(Statement& statement, int parameter, const std::string& value) {
    statement.bindText(parameter, value);
}

void bindField(Statement& statement, int parameter, const Uuid& value) {
    statement.bindBlob(parameter, value.bytes());
}

void bindField(Statement& statement, int parameter, const Instant& value) {
    if (std::isnan(value.secondsSince1970)) {
        statement.bindBlob(parameter, {});
    } else {
        statement.bindReal(parameter, value.secondsSince1970);
    }
}

void bindField(Statement& statement, int parameter, const std::optional<Instant>& value) {
    if (value) {
        bindField(statement, parameter, *value);
    } else {
        statement.bindNull(parameter);
    }
}

void readField(const Statement& statement, int column, std::int64_t& value) {
    value = statement.integer(column);
}

void readField(const Statement& statement, int column, bool& value) {
    value = statement.integer(column) != 0;
}

void readField(const Statement& statement, int column, std::string& value) {
    value = statement.text(column);
}

void readField(const Statement& statement, int column, Uuid& value) {
    const std::span<const std::uint8_t> blob = statement.blob(column);
    Uuid::Bytes bytes{};
    if (blob.size() != bytes.size()) {
        failColumn();
    }
    std::ranges::copy(blob, bytes.begin());
    value = Uuid(bytes);
}

void readField(const Statement& statement, int column, Instant& value) {
    value.secondsSince1970 = statement.real(column);
    if (value.secondsSince1970 == 0 && statement.blob(column).empty()) {
        value.secondsSince1970 = std::numeric_limits<double>::quiet_NaN();
    }
}

void readField(const Statement& statement, int column, std::optional<Instant>& value) {
    if (statement.isNull(column)) {
        value.reset();
    } else {
        readField(statement, column, value.emplace());
    }
}

} // namespace platform::store
