#include "Platform/store/Statement.h"

#include "Platform/store/Database.h"

#include <sqlite3.h>

#include <utility>

namespace platform::store {

Statement::~Statement() {
    if (statement_ != nullptr) {
        database_->giveBack(poolKey_, statement_);
    }
}

Statement::Statement(Statement&& other) noexcept
    : database_(other.database_),
      poolKey_(other.poolKey_),
      statement_(std::exchange(other.statement_, nullptr)) {
}

void Statement::check(int result) const {
    if (result != SQLITE_OK) {
        database_->fail(result);
    }
}

void Statement::bindNull(int parameter) {
    check(sqlite3_bind_null(statement_, parameter));
}

void Statement::bindInteger(int parameter, std::int64_t value) {
    check(sqlite3_bind_int64(statement_, parameter, value));
}

void Statement::bindReal(int parameter, double value) {
    check(sqlite3_bind_double(statement_, parameter, value));
}

// A null pointer would bind NULL instead of something empty.
void Statement::bindText(int parameter, std::string_view value) {
    check(sqlite3_bind_text64(statement_, parameter, value.empty() ? "" : value.data(),
                              value.size(), SQLITE_STATIC, SQLITE_UTF8));
}

void Statement::bindBlob(int parameter, std::span<const std::uint8_t> value) {
    const void* data = value.empty() ? static_cast<const void*>("") : value.data();
    check(sqlite3_bind_blob64(statement_, parameter, data, value.size(), SQLITE_STATIC));
}

bool Statement::step() {
    const int result = sqlite3_step(statement_);
    if (result == SQLITE_ROW) {
        return true;
    }
    if (result != SQLITE_DONE) {
        database_->fail(result);
    }
    return false;
}

void Statement::run() {
    while (step()) {
    }
    reset();
}

void Statement::reset() {
    sqlite3_reset(statement_);
}

bool Statement::isNull(int column) const {
    return sqlite3_column_type(statement_, column) == SQLITE_NULL;
}

std::int64_t Statement::integer(int column) const {
    return sqlite3_column_int64(statement_, column);
}

double Statement::real(int column) const {
    return sqlite3_column_double(statement_, column);
}

std::string_view Statement::text(int column) const {
    const unsigned char* text = sqlite3_column_text(statement_, column);
    if (text == nullptr) {
        return {};
    }
    return {reinterpret_cast<const char*>(text),
            static_cast<std::size_t>(sqlite3_column_bytes(statement_, column))};
}

std::span<const std::uint8_t> Statement::blob(int column) const {
    const void* blob = sqlite3_column_blob(statement_, column);
    if (blob == nullptr) {
        return {};
    }
    return {static_cast<const std::uint8_t*>(blob),
            static_cast<std::size_t>(sqlite3_column_bytes(statement_, column))};
}

} // namespace platform::store
