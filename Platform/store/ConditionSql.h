#pragma once

#include "Platform/store/FieldValue.h"
#include "Platform/store/Statement.h"
#include "Platform/store/TableDescription.h"

#include <string>
#include <vector>

namespace platform::store {

/// The SQL that holds for the same rows as `holds` does in memory: `WHERE …`, or nothing without
/// conditions. Parameters are numbered by condition.
[[nodiscard]] std::string whereClause(const TableDescription& table,
                                      const std::vector<Condition>& conditions);

/// Binds what `whereClause` left open. The conditions must outlive the statement's use.
void bindConditions(Statement& statement, const std::vector<Condition>& conditions);

} // namespace platform::store
