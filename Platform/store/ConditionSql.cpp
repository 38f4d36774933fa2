#include "Platform/store/ConditionSql.h"

#include "Platform/store/FieldCodec.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <optional>
#include <string_view>

namespace platform::store {

namespace {

std::string_view symbol(Comparison comparison) {
    switch (comparison) {
    case Comparison::equal:
        return " = ";
    case Comparison::notEqual:
        return " IS NOT "; // unlike <>, true of an absent value
    case Comparison::less:
        return " < ";
    case Comparison::lessOrEqual:
        return " <= ";
    case Comparison::greater:
        return " > ";
    case Comparison::greaterOrEqual:
        return " >= ";
    }
    return {};
}

bool isAny(Comparison comparison, std::initializer_list<Comparison> of) {
    return std::ranges::find(of, comparison) != of.end();
}

bool isBelow(Comparison comparison) {
    return isAny(comparison, {Comparison::less, Comparison::lessOrEqual});
}

bool isAbove(Comparison comparison) {
    return isAny(comparison, {Comparison::greater, Comparison::greaterOrEqual});
}

std::string againstAbsent(const std::string& column, Comparison comparison) {
    if (isAny(comparison, {Comparison::equal, Comparison::lessOrEqual})) {
        return column + " IS NULL";
    }
    if (isAny(comparison, {Comparison::notEqual, Comparison::greater})) {
        return column + " IS NOT NULL";
    }
    return comparison == Comparison::greaterOrEqual ? "TRUE" : "FALSE";
}

std::string againstNotANumber(const std::string& column, Comparison comparison, bool mayBeAbsent) {
    if (comparison == Comparison::notEqual) {
        return "TRUE";
    }
    return mayBeAbsent && isBelow(comparison) ? column + " IS NULL" : "FALSE";
}

/// The instant a condition compares with, unless it is absent or of another type.
const Instant* instantOf(const FieldValue& value) {
    if (const auto* instant = std::get_if<Instant>(&value)) {
        return instant;
    }
    const auto* optional = std::get_if<std::optional<Instant>>(&value);
    return optional != nullptr && optional->has_value() ? &**optional : nullptr;
}

bool isOptional(const FieldValue& value) {
    return std::holds_alternative<std::optional<Instant>>(value);
}

bool isNotANumber(const FieldValue& value) {
    const Instant* instant = instantOf(value);
    return instant != nullptr && std::isnan(instant->secondsSince1970);
}

bool isAbsent(const FieldValue& value) {
    return isOptional(value) && instantOf(value) == nullptr;
}

std::string conditionSql(const std::string& column, const Condition& condition,
                         std::size_t parameter) {
    if (isAbsent(condition.value)) {
        return againstAbsent(column, condition.comparison);
    }
    if (isNotANumber(condition.value)) {
        return againstNotANumber(column, condition.comparison, isOptional(condition.value));
    }
    std::string sql = column;
    sql += symbol(condition.comparison);
    sql += "?";
    sql += std::to_string(parameter);
    if (instantOf(condition.value) != nullptr && isAbove(condition.comparison)) {
        sql += " AND " + column + " <= 9e999"; // leaves out blobs, which sort after all numbers
    }
    if (isOptional(condition.value) && isBelow(condition.comparison)) {
        sql += " OR " + column + " IS NULL";
    }
    return "(" + sql + ")";
}

} // namespace

std::string whereClause(const TableDescription& table, const std::vector<Condition>& conditions) {
    std::string sql;
    for (std::size_t i = 0; i < conditions.size(); ++i) {
        sql += sql.empty() ? " WHERE " : " AND ";
        sql += conditionSql(std::string(table.columns[conditions[i].field].name), conditions[i],
                            i + 1);
    }
    return sql;
}

void bindConditions(Statement& statement, const std::vector<Condition>& conditions) {
    int parameter = 0;
    for (const Condition& condition : conditions) {
        ++parameter;
        if (!isAbsent(condition.value) && !isNotANumber(condition.value)) {
            std::visit([&](const auto& value) { bindField(statement, parameter, value); },
                       condition.value);
        }
    }
}

} // namespace platform::store
