#pragma once

#include "Platform/base/Instant.h"
#include "Platform/base/Uuid.h"
#include "Platform/store/Statement.h"

#include <cstdint>
#include <optional>
#include <string>

namespace platform::store {

// How field values are written to and read from SQL; the format is described in TableDescription.h.

void bindField(Statement& statement, int parameter, const std::int64_t& value);
void bindField(Statement& statement, int parameter, const bool& value);
void bindField(Statement& statement, int parameter, const std::string& value);
void bindField(Statement& statement, int parameter, const Uuid& value);
void bindField(Statement& statement, int parameter, const Instant& value);
void bindField(Statement& statement, int parameter, const std::optional<Instant>& value);

/// Throw `damaged` when the column does not hold such a value.
void readField(const Statement& statement, int column, std::int64_t& value);
void readField(const Statement& statement, int column, bool& value);
void readField(const Statement& statement, int column, std::string& value);
void readField(const Statement& statement, int column, Uuid& value);
void readField(const Statement& statement, int column, Instant& value);
void readField(const Statement& statement, int column, std::optional<Instant>& value);

} // namespace platform::store
